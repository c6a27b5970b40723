#include "style/families/Calendars.h"

#include "style/polishing/Polishing.h"

#include <QtCore/QPointer>
#include <QtWidgets/QCalendarWidget>
#include <QtWidgets/QSpinBox>

namespace TARN::Calendars {

namespace {

void polishGround(Polishing &polishing)
{
    QWidget &bar = polishing.widget();
    if (bar.backgroundRole() != QPalette::Highlight) {
        return;
    }
    bar.setBackgroundRole(QPalette::Window);
    polishing.addUndo([&bar] {
        if (bar.backgroundRole() == QPalette::Window) {
            bar.setBackgroundRole(QPalette::Highlight);
        }
    });
}

/// Gives the field in which the year is typed the selection back that it has elsewhere.
void keepSelection(Polishing &polishing, const QPalette &selection)
{
    auto *edit = polishing.widget().findChild<QSpinBox *>(QString(), Qt::FindDirectChildrenOnly);
    if (!edit || edit->testAttribute(Qt::WA_SetPalette)) {
        return;
    }
    QPalette palette;
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        palette.setBrush(group, QPalette::HighlightedText,
                         selection.brush(group, QPalette::HighlightedText));
    }
    edit->setPalette(palette);
    polishing.addUndo([edit = QPointer<QSpinBox>(edit)] {
        if (edit) {
            edit->setPalette(QPalette());
        }
    });
}

} // namespace

bool isNavigationBar(const QObject *widget)
{
    return qobject_cast<const QCalendarWidget *>(widget->parent()) &&
           widget->objectName() == QLatin1String("qt_calendar_navigationbar");
}

void polishNavigationBar(Polishing &polishing)
{
    const QPalette palette = polishing.widget().palette();
    polishGround(polishing);
    // Its buttons take their texts from the role of selected ones.
    polishing.setBrushes(
        {{QPalette::HighlightedText, palette.brush(QPalette::Active, QPalette::WindowText),
          palette.brush(QPalette::Inactive, QPalette::WindowText),
          palette.brush(QPalette::Disabled, QPalette::WindowText)}});
    keepSelection(polishing, palette);
}

} // namespace TARN::Calendars
