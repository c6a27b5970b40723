#include "theme/following/FetchedIcons.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QCalendarWidget>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QTabBar>

namespace TARN {

void fetchIcons()
{
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        if (qobject_cast<QMessageBox *>(widget) || qobject_cast<QDockWidget *>(widget)) {
            QEvent styleChange(QEvent::StyleChange);
            QCoreApplication::sendEvent(widget, &styleChange);
        }
    }
}

void fetchIconsOfTurned()
{
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        if (widget->inherits("QToolBarExtension") || qobject_cast<QCalendarWidget *>(widget)) {
            QEvent directionChange(QEvent::LayoutDirectionChange);
            QCoreApplication::sendEvent(widget, &directionChange);
        }
    }
}

void fitCloseButtons()
{
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        auto *tabBar = qobject_cast<QTabBar *>(widget->parentWidget());
        if (tabBar && widget->inherits("CloseButton")) {
            widget->resize(widget->sizeHint());
            // It is then that the bar measures its tabs.
            QEvent fontChange(QEvent::FontChange);
            QCoreApplication::sendEvent(tabBar, &fontChange);
        }
    }
}

} // namespace TARN
