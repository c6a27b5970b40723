#include <style/BaseStyle.h>

#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QDialog>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QTextEdit>

#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/themes/PaintTheme.h>

using TARN::BaseStyle;

namespace {

constexpr QSize size(30, 20);

QStyleOption windowOption(QStyle::State state = QStyle::State_Enabled)
{
    QStyleOption option;
    option.rect = QRect(QPoint(), size);
    option.state = state;
    option.palette.setColor(QPalette::Dark, Qt::red);
    option.palette.setColor(QPalette::Light, Qt::green);
    return option;
}

} // namespace

/// The grounds, the frames and the shadows of windows.
class WindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void frame_data();
    void frame();
    void frameIsCrisp_data();
    void frameIsCrisp();
    void mainWindowIsDark();
    void mainWindowInsideAnotherHasNoGround();
    void dockIsLight();
    void otherWidgetsHaveNoGround();
    void backgroundsAreStyled();
    void shadowsAreAllowed();
    void shownWindowStaysShown();
    void scrollAreaBackground();

private:
    QImage background(const QWidget *widget)
    {
        return m_recorder.picture(QStyle::PE_Widget, windowOption(), widget, size);
    }

    PaintTheme m_theme;
    CallRecorder m_recorder;
    BaseStyle m_style;
};

void WindowTest::frame_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QString>("border");
    QTest::newRow("enabled") << true << text("CardBorderBrush");
    QTest::newRow("disabled") << false << text("CardBorderBrushDisabled");
}

void WindowTest::frame()
{
    QFETCH(bool, enabled);
    QFETCH(QString, border);
    const QStyle::State state = enabled ? QStyle::State_Enabled : QStyle::State_None;
    const QImage picture =
        m_recorder.picture(QStyle::PE_FrameWindow, windowOption(state), nullptr, size);
    const QRect inside = QRect(QPoint(), size).adjusted(1, 1, -1, -1);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const QString expected = inside.contains(x, y) ? QString() : border;
            QCOMPARE(m_theme.nameAt(picture, {x, y}), expected);
        }
    }
}

void WindowTest::frameIsCrisp_data()
{
    QTest::addColumn<qreal>("scale");
    QTest::addColumn<QPoint>("origin");
    QTest::addColumn<int>("width");
    for (const QPoint &origin : {QPoint(0, 0), QPoint(1, 1), QPoint(2, 3), QPoint(3, 5)}) {
        for (const auto &row : {qMakePair(1.25, 1), qMakePair(1.5, 1), qMakePair(1.75, 1),
                                qMakePair(2.0, 2), qMakePair(3.0, 3)}) {
            QTest::addRow("%g at %d, %d", row.first, origin.x(), origin.y())
                << row.first << origin << row.second;
        }
    }
}

// The frame is closed, equally wide on all sides, and nothing of it is blurred.
void WindowTest::frameIsCrisp()
{
    QFETCH(qreal, scale);
    QFETCH(QPoint, origin);
    QFETCH(int, width);
    QImage picture(120, 120, QImage::Format_RGB32);
    picture.fill(Qt::black);
    picture.setDevicePixelRatio(scale);
    QPainter painter(&picture);
    QStyleOption option = windowOption();
    option.rect.moveTo(origin);
    m_recorder.style().drawPrimitive(QStyle::PE_FrameWindow, &option, &painter);
    painter.end();

    const QRect outside(QPoint(qRound(origin.x() * scale), qRound(origin.y() * scale)),
                        QPoint(qRound((origin.x() + size.width()) * scale) - 1,
                               qRound((origin.y() + size.height()) * scale) - 1));
    QImage expected(120, 120, QImage::Format_RGB32);
    expected.fill(Qt::black);
    QPainter expectedPainter(&expected);
    expectedPainter.fillRect(outside, m_theme.brush(text("CardBorderBrush")));
    expectedPainter.fillRect(outside.adjusted(width, width, -width, -width), Qt::black);
    expectedPainter.end();
    picture.setDevicePixelRatio(1);
    QCOMPARE(picture, expected);
}

void WindowTest::mainWindowIsDark()
{
    const QMainWindow window;
    QImage expected(size, QImage::Format_RGB32);
    expected.fill(Qt::red);
    QCOMPARE(background(&window), expected);
}

void WindowTest::mainWindowInsideAnotherHasNoGround()
{
    QMainWindow outer;
    auto *inner = new QMainWindow;
    outer.setCentralWidget(inner);
    QVERIFY(!inner->isWindow());
    QImage expected(size, QImage::Format_RGB32);
    expected.fill(Qt::black);
    QCOMPARE(background(inner), expected);
}

void WindowTest::dockIsLight()
{
    const QDockWidget dock;
    QImage expected(size, QImage::Format_RGB32);
    expected.fill(Qt::green);
    QCOMPARE(background(&dock), expected);
}

void WindowTest::otherWidgetsHaveNoGround()
{
    QImage expected(size, QImage::Format_RGB32);
    expected.fill(Qt::black);
    const QWidget widget;
    QCOMPARE(background(&widget), expected);
    QCOMPARE(background(nullptr), expected);
}

void WindowTest::backgroundsAreStyled()
{
    QMainWindow window;
    QDockWidget docked;
    window.addDockWidget(Qt::LeftDockWidgetArea, &docked);
    QDockWidget floating;
    QMainWindow inner(&window);
    inner.setWindowFlags(Qt::Widget);
    QDialog dialog;
    for (QWidget *widget : {static_cast<QWidget *>(&window), static_cast<QWidget *>(&docked),
                            static_cast<QWidget *>(&floating), static_cast<QWidget *>(&inner),
                            static_cast<QWidget *>(&dialog)}) {
        widget->setAttribute(Qt::WA_StyledBackground, false);
        m_style.polish(widget);
    }
    QVERIFY(window.testAttribute(Qt::WA_StyledBackground));
    QVERIFY(docked.testAttribute(Qt::WA_StyledBackground));
    QVERIFY(floating.testAttribute(Qt::WA_StyledBackground));
    QVERIFY(!inner.testAttribute(Qt::WA_StyledBackground));
    QVERIFY(!dialog.testAttribute(Qt::WA_StyledBackground));
}

void WindowTest::shadowsAreAllowed()
{
    QWidget plain(nullptr, Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
    m_style.polish(&plain);
    QCOMPARE(plain.windowFlags(), Qt::Popup | Qt::FramelessWindowHint);

    QWidget child(&plain);
    child.setWindowFlag(Qt::NoDropShadowWindowHint);
    m_style.polish(&child);
    QVERIFY(!child.windowFlags().testFlag(Qt::NoDropShadowWindowHint));
}

void WindowTest::shownWindowStaysShown()
{
    QWidget window;
    window.show();
    m_style.polish(&window);
    QVERIFY(window.isVisible());
}

void WindowTest::scrollAreaBackground()
{
    QScrollArea area;
    QTextEdit edit;
    const QPalette::ColorRole before = edit.viewport()->backgroundRole();
    QVERIFY(area.viewport()->backgroundRole() != QPalette::Light);
    m_style.polish(&area);
    m_style.polish(&edit);
    QCOMPARE(area.viewport()->backgroundRole(), QPalette::Light);
    QCOMPARE(edit.viewport()->backgroundRole(), before);
}

QTEST_MAIN(WindowTest)
#include "WindowTest.moc"
