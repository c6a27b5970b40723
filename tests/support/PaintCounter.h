#pragma once

#include <QtCore/QEvent>
#include <QtTest/QtTest>
#include <QtWidgets/QWidget>

/// Counts the paint events of a widget.
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget &widget) { widget.installEventFilter(this); }

    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

    int count = 0;
};

/// Waits until everything is painted that \a window was asked to paint before, but for what only
/// the painting asked for. Tells whether it was. The corner of the window has to be free.
inline bool isPainted(QWidget &window)
{
    const PaintCounter paintings(window);
    window.update(0, 0, 1, 1);
    return QTest::qWaitFor([&] { return paintings.count > 0; });
}
