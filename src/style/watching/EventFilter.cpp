#include "style/watching/EventFilter.h"

#include "style/asking/Classes.h"
#include "style/watching/AltKey.h"
#include "style/watching/ButtonIcons.h"
#include "style/watching/WeekEnds.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QCalendarWidget>
#include <QtWidgets/QCommandLinkButton>
#include <QtWidgets/QToolButton>

namespace TARN {

namespace {

void tintIcon(QWidget &widget)
{
    auto *toolButton = qobject_cast<QToolButton *>(&widget);
    if (toolButton && isA(toolButton, "QLineEditIconButton")) {
        tintClearButton(*toolButton);
        return;
    }
    auto *button = qobject_cast<QAbstractButton *>(&widget);
    if (button && isLike<QCommandLinkButton>(button)) {
        tintCommandLink(*button);
    }
}

bool isAlt(const QEvent &event)
{
    return static_cast<const QKeyEvent &>(event).key() == Qt::Key_Alt;
}

} // namespace

void watch(QWidget &widget, const QEvent &event, AltKey &altKey)
{
    switch (event.type()) {
    case QEvent::Paint:
        tintIcon(widget);
        break;
    case QEvent::EnabledChange:
        if (auto *calendar = qobject_cast<QCalendarWidget *>(&widget)) {
            updateWeekEnds(*calendar);
        }
        break;
    case QEvent::KeyPress:
        if (isAlt(event)) {
            altKey.press(*widget.window());
        }
        break;
    case QEvent::KeyRelease:
        if (isAlt(event)) {
            altKey.release(*widget.window());
        }
        break;
    case QEvent::WindowDeactivate:
        // Another window hears the release.
        if (altKey.isDown()) {
            altKey.release(*widget.window());
        }
        break;
    case QEvent::Close:
        altKey.forget(widget);
        altKey.forget(*widget.window());
        break;
    default:
        break;
    }
}

} // namespace TARN
