#include <style/BaseStyle.h>

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCommandLinkButton>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

#include <optional>
#include <support/PaintCounter.h>
#include <support/Text.h>

using TARN::BaseStyle;

namespace {

/// A style that underlines no shortcuts, whatever is pressed.
class NeverUnderlining : public QProxyStyle
{
public:
    NeverUnderlining()
        : QProxyStyle(text("fusion"))
    {
    }

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returnData) const override
    {
        return hint == SH_UnderlineShortcut
                   ? 0
                   : QProxyStyle::styleHint(hint, option, widget, returnData);
    }
};

/// A button of the toolkit's private class, which is known by its name only.
class IconButton : public QToolButton
{
public:
    void *qt_metacast(const char *className) override
    {
        return qstrcmp(className, "QLineEditIconButton") == 0 ? this
                                                              : QToolButton::qt_metacast(className);
    }
};

/// A window that tells how many wait for its end.
class ListenedWindow : public QWidget
{
public:
    int listeners() const { return receivers(SIGNAL(destroyed(QObject *))); }
};

/// A window of the things that Alt concerns.
struct AltWindow
{
    AltWindow()
    {
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(menuBar);
        layout->addWidget(nested);
        layout->addWidget(stubborn);
        layout->addWidget(hidden);
        auto *nestedLayout = new QVBoxLayout(nested);
        nestedLayout->addWidget(label);
        menuBar->addMenu(text("&File"));
        stubborn->setStyle(&neverUnderlining);
        dialog->setStyle(&alwaysUnderlining);
        hidden->hide();
    }

    /// Shows everything, and waits until it is painted.
    bool show()
    {
        window.resize(300, 300);
        window.show();
        dialog->show();
        return QTest::qWaitForWindowExposed(&window) && QTest::qWaitForWindowExposed(dialog);
    }

    /// Waits until nothing is left to be painted.
    bool isAtRest() { return isPainted(window) && isPainted(*dialog); }

    NeverUnderlining neverUnderlining;
    QProxyStyle alwaysUnderlining{text("fusion")};
    QWidget window;
    QMenuBar *menuBar = new QMenuBar;
    QWidget *nested = new QWidget;
    QLabel *label = new QLabel(text("A label"));
    QLabel *stubborn = new QLabel(text("Never underlined"));
    QLabel *hidden = new QLabel(text("Hidden"));
    QDialog *dialog = new QDialog(&window);
};

} // namespace

/// The icons that are tinted when they are painted, and the Alt key.
class EventFilterTest : public QObject
{
    Q_OBJECT

private:
    BaseStyle *m_style = nullptr;

    void send(QWidget &watched, QEvent::Type type, int key = Qt::Key_Alt)
    {
        QKeyEvent event(type, key, Qt::NoModifier);
        m_style->eventFilter(&watched, &event);
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_style = new BaseStyle;
        QApplication::setStyle(m_style);
    }

    void altIsFollowedByWindow()
    {
        AltWindow first;
        const QWidget second;
        QVERIFY(!m_style->hasSeenAlt(&first.window));
        send(*first.label, QEvent::KeyPress);
        QVERIFY(m_style->altDown());
        QVERIFY(m_style->hasSeenAlt(&first.window));
        QVERIFY(m_style->hasSeenAlt(first.stubborn));
        QVERIFY(!m_style->hasSeenAlt(first.dialog));
        QVERIFY(!m_style->hasSeenAlt(&second));
        QVERIFY(!m_style->hasSeenAlt(nullptr));
        send(first.window, QEvent::KeyRelease);
        QVERIFY(!m_style->altDown());
        QVERIFY(m_style->hasSeenAlt(&first.window));
    }

    void otherKeysDoNothing()
    {
        QWidget window;
        for (const int key : {int(Qt::Key_AltGr), int(Qt::Key_Control), int(Qt::Key_A)}) {
            send(window, QEvent::KeyPress, key);
            QVERIFY(!m_style->altDown());
            QVERIFY(!m_style->hasSeenAlt(&window));
        }
        send(window, QEvent::KeyPress);
        send(window, QEvent::KeyRelease, Qt::Key_Control);
        QVERIFY(m_style->altDown());
        send(window, QEvent::KeyRelease);
    }

    void objectsThatAreNoWidgetsDoNothing()
    {
        QObject object;
        QKeyEvent event(QEvent::KeyPress, Qt::Key_Alt, Qt::AltModifier);
        QVERIFY(!m_style->eventFilter(&object, &event));
        QVERIFY(!m_style->altDown());
    }

    void pressRepaintsWhatUnderlines()
    {
        AltWindow all;
        QVERIFY(all.show());
        QVERIFY(all.isAtRest());
        PaintCounter menuBar(*all.menuBar);
        PaintCounter label(*all.label);
        PaintCounter stubborn(*all.stubborn);
        PaintCounter dialog(*all.dialog);
        send(*all.label, QEvent::KeyPress);
        QTRY_VERIFY(label.count > 0);
        QVERIFY(menuBar.count > 0);
        // Twice, so that the dialog would have been painted in between.
        QVERIFY(isPainted(all.window) && isPainted(all.window));
        QCOMPARE(stubborn.count, 0);
        QCOMPARE(dialog.count, 0);
        send(*all.label, QEvent::KeyRelease);
    }

    void releaseRepaintsMenuBars()
    {
        AltWindow all;
        QVERIFY(all.show());
        send(*all.label, QEvent::KeyPress);
        QVERIFY(all.isAtRest());
        PaintCounter menuBar(*all.menuBar);
        PaintCounter label(*all.label);
        send(*all.label, QEvent::KeyRelease);
        QTRY_VERIFY(menuBar.count > 0);
        QVERIFY(all.isAtRest());
        QCOMPARE(label.count, 0);
    }

    void deactivationIsARelease()
    {
        AltWindow all;
        QVERIFY(all.show());
        send(all.window, QEvent::KeyPress);
        QVERIFY(all.isAtRest());
        PaintCounter menuBar(*all.menuBar);
        QEvent deactivate(QEvent::WindowDeactivate);
        m_style->eventFilter(&all.window, &deactivate);
        QVERIFY(!m_style->altDown());
        QVERIFY(m_style->hasSeenAlt(&all.window));
        QTRY_VERIFY(menuBar.count > 0);
    }

    void closingForgetsTheWindow()
    {
        AltWindow all;
        for (QWidget *closed : {&all.window, static_cast<QWidget *>(all.label)}) {
            for (int press = 0; press < 3; ++press) {
                send(*all.nested, QEvent::KeyPress);
                send(*all.nested, QEvent::KeyRelease);
            }
            QVERIFY(m_style->hasSeenAlt(&all.window));
            QCloseEvent close;
            m_style->eventFilter(closed, &close);
            QVERIFY(!m_style->hasSeenAlt(&all.window));
        }
    }

    void closedWindowIsNotWatched()
    {
        ListenedWindow window;
        const int before = window.listeners();
        for (int opening = 0; opening < 3; ++opening) {
            send(window, QEvent::KeyPress);
            send(window, QEvent::KeyRelease);
            QVERIFY(window.listeners() > before);
            QCloseEvent close;
            m_style->eventFilter(&window, &close);
            QCOMPARE(window.listeners(), before);
        }
    }

    void destroyedWindowIsForgotten()
    {
        std::optional<QWidget> window(std::in_place);
        send(*window, QEvent::KeyPress);
        send(*window, QEvent::KeyRelease);
        const QWidget *address = &*window;
        window.reset();
        window.emplace();
        QCOMPARE(&*window, address);
        QVERIFY(!m_style->hasSeenAlt(&*window));
    }

    void eventsReachTheirTarget_data()
    {
        QTest::addColumn<QEvent::Type>("type");
        QTest::newRow("paint") << QEvent::Paint;
        QTest::newRow("key press") << QEvent::KeyPress;
        QTest::newRow("key release") << QEvent::KeyRelease;
        QTest::newRow("close") << QEvent::Close;
        QTest::newRow("deactivation") << QEvent::WindowDeactivate;
        QTest::newRow("mouse press") << QEvent::MouseButtonPress;
    }

    void eventsReachTheirTarget()
    {
        QFETCH(QEvent::Type, type);
        QLineEdit edit;
        QCommandLinkButton link(text("Continue"));
        IconButton clear;
        for (QWidget *widget : {static_cast<QWidget *>(&edit), static_cast<QWidget *>(&link),
                                static_cast<QWidget *>(&clear)}) {
            QKeyEvent event(type, Qt::Key_Alt, Qt::AltModifier);
            for (const bool accepted : {true, false}) {
                event.setAccepted(accepted);
                QVERIFY(!m_style->eventFilter(widget, &event));
                QCOMPARE(event.isAccepted(), accepted);
            }
        }
        send(edit, QEvent::KeyRelease);
    }
};

QTEST_MAIN(EventFilterTest)
#include "EventFilterTest.moc"
