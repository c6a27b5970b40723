#include "style/watching/AltKey.h"

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

/// Has everything in \a window painted again that may underline keys.
void updateMnemonics(const QWidget &window)
{
    for (QWidget *widget : window.findChildren<QWidget *>()) {
        if (!widget->isWindow() && widget->isVisible() &&
            widget->style()->styleHint(QStyle::SH_UnderlineShortcut, nullptr, widget) != 0) {
            widget->update();
        }
    }
}

/// Has the menu bars in \a window painted again.
void updateMenuBars(const QWidget &window)
{
    for (QMenuBar *menuBar : window.findChildren<QMenuBar *>()) {
        menuBar->update();
    }
}

} // namespace

bool AltKey::hasBeenSeen(const QWidget *widget) const
{
    return widget && m_windows.contains(widget->window());
}

void AltKey::press(const QWidget &window)
{
    m_isDown = true;
    if (!m_windows.contains(&window)) {
        m_windows.append(&window);
        QObject::connect(&window, &QObject::destroyed, &m_context,
                         [this, address = &window] { m_windows.removeAll(address); });
    }
    updateMnemonics(window);
}

void AltKey::release(const QWidget &window)
{
    m_isDown = false;
    updateMenuBars(window);
}

void AltKey::forget(const QWidget &window)
{
    if (m_windows.removeAll(&window) > 0) {
        QObject::disconnect(&window, &QObject::destroyed, &m_context, nullptr);
    }
}

bool AltKey::underlines(const QWidget &widget) const
{
    const bool hasSeenAlt = hasBeenSeen(keyWindow(widget));
    return qobject_cast<const QMenuBar *>(&widget) ? hasSeenAlt && m_isDown : hasSeenAlt;
}

} // namespace TARN
