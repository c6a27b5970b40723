#pragma once

#include <QtCore/QList>
#include <QtCore/QObject>

class QWidget;

namespace TARN {

/// Follows the Alt key, which has the keys underlined by which widgets are reached.
class AltKey
{
public:
    /// Tells whether Alt is held.
    bool isDown() const { return m_isDown; }
    /// Tells whether Alt has been pressed in the window of \a widget, which may be null.
    bool hasBeenSeen(const QWidget *widget) const;

    void press(const QWidget &window);
    void release(const QWidget &window);
    /// Forgets that Alt has been pressed in \a window.
    void forget(const QWidget &window);

    /// Tells whether \a widget, which is seen, underlines its keys: a menu bar while Alt is held,
    /// anything else from the first Alt in its window on.
    bool underlines(const QWidget &widget) const;

private:
    bool m_isDown = false;
    QList<const QWidget *> m_windows;
    /// Ends with this object, and with it what hears windows end.
    QObject m_context;
};

} // namespace TARN
