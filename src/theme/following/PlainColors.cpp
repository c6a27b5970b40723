#include "theme/following/PlainColors.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMdiArea>

namespace TARN {

namespace {

/// Returns the palette that \a widget would have if nobody had given it one.
QPalette inheritedPalette(const QWidget &widget)
{
    return widget.isWindow() || !widget.parentWidget() ? QApplication::palette(&widget)
                                                       : widget.parentWidget()->palette();
}

/// Tells whether the text of \a label is coloured like what it stands on, though its palette says
/// so itself: a style that colours its disabled text fixes the enabled one too, since a palette has
/// a role for all of its groups or for none.
bool isPlain(const QLabel &label)
{
    const QPalette &palette = label.palette();
    const bool saysSoItself = (palette.resolve() & (1U << QPalette::WindowText)) != 0;
    return saysSoItself &&
           palette.brush(QPalette::Active, QPalette::WindowText) ==
               inheritedPalette(label).brush(QPalette::Active, QPalette::WindowText);
}

/// Gives \a label the text colour of what it stands on.
void colorPlain(QLabel &label)
{
    const QPalette inherited = inheritedPalette(label);
    QPalette palette = label.palette();
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        palette.setBrush(group, QPalette::WindowText, inherited.brush(group, QPalette::WindowText));
    }
    label.setPalette(palette);
}

/// Returns the background that the toolkit gives an area for sub-windows: it takes that from the
/// palette when the area is made, and never again.
QBrush plainBackground()
{
    return QGuiApplication::palette().brush(QPalette::Dark);
}

} // namespace

PlainColors::PlainColors()
{
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        auto *label = qobject_cast<QLabel *>(widget);
        if (label && isPlain(*label)) {
            m_labels.append(label);
        }
        auto *area = qobject_cast<QMdiArea *>(widget);
        if (area && area->background() == plainBackground()) {
            m_areas.append(area);
        }
    }
}

void PlainColors::follow() const
{
    for (QLabel *label : m_labels) {
        if (label) {
            colorPlain(*label);
        }
    }
    for (QMdiArea *area : m_areas) {
        if (area) {
            area->setBackground(plainBackground());
        }
    }
}

} // namespace TARN
