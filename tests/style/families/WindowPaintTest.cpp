#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QMainWindow>

#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/themes/PaintTheme.h>

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

/// The grounds and the frames of windows.
class WindowPaintTest : public QObject
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

private:
    QImage background(const QWidget *widget)
    {
        return m_recorder.picture(QStyle::PE_Widget, windowOption(), widget, size);
    }

    PaintTheme m_theme;
    CallRecorder m_recorder;
};

void WindowPaintTest::frame_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QString>("border");
    QTest::newRow("enabled") << true << text("CardBorderBrush");
    QTest::newRow("disabled") << false << text("CardBorderBrushDisabled");
}

void WindowPaintTest::frame()
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

void WindowPaintTest::frameIsCrisp_data()
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
void WindowPaintTest::frameIsCrisp()
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

void WindowPaintTest::mainWindowIsDark()
{
    const QMainWindow window;
    QImage expected(size, QImage::Format_RGB32);
    expected.fill(Qt::red);
    QCOMPARE(background(&window), expected);
}

void WindowPaintTest::mainWindowInsideAnotherHasNoGround()
{
    QMainWindow outer;
    auto *inner = new QMainWindow;
    outer.setCentralWidget(inner);
    QVERIFY(!inner->isWindow());
    QImage expected(size, QImage::Format_RGB32);
    expected.fill(Qt::black);
    QCOMPARE(background(inner), expected);
}

void WindowPaintTest::dockIsLight()
{
    const QDockWidget dock;
    QImage expected(size, QImage::Format_RGB32);
    expected.fill(Qt::green);
    QCOMPARE(background(&dock), expected);
}

void WindowPaintTest::otherWidgetsHaveNoGround()
{
    QImage expected(size, QImage::Format_RGB32);
    expected.fill(Qt::black);
    const QWidget widget;
    QCOMPARE(background(&widget), expected);
    QCOMPARE(background(nullptr), expected);
}

QTEST_MAIN(WindowPaintTest)

#include "WindowPaintTest.moc"
