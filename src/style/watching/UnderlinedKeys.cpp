#include "style/watching/UnderlinedKeys.h"

#include "style/BaseStyle.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>

namespace TARN {

namespace {

/// Returns the window in which Alt is pressed for \a widget: a pop-up gets no keys of its own
/// before it is open.
const QWidget *keyWindow(const QWidget &widget)
{
    const QWidget *window = widget.window();
    while (window->windowType() == Qt::Popup && window->parentWidget()) {
        window = window->parentWidget()->window();
    }
    // The active window may be the pop-up itself.
    return window->windowType() == Qt::Popup ? QApplication::activeWindow() : window;
}

} // namespace

bool areMnemonicsUnderlined(const BaseStyle &style, const QWidget &widget)
{
    const bool hasSeenAlt = style.hasSeenAlt(keyWindow(widget));
    return qobject_cast<const QMenuBar *>(&widget) ? hasSeenAlt && style.altDown() : hasSeenAlt;
}

void updateMnemonics(const QWidget &window)
{
    for (QWidget *widget : window.findChildren<QWidget *>()) {
        if (!widget->isWindow() && widget->isVisible() &&
            widget->style()->styleHint(QStyle::SH_UnderlineShortcut, nullptr, widget) != 0) {
            widget->update();
        }
    }
}

void updateMenuBars(const QWidget &window)
{
    for (QMenuBar *menuBar : window.findChildren<QMenuBar *>()) {
        menuBar->update();
    }
}

} // namespace TARN
