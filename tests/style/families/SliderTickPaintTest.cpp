#include "style/families/SliderSample.h"

#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QSlider>

#include <algorithm>
#include <climits>
#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/painting/CountingDevice.h>
#include <support/themes/PaintTheme.h>

namespace {

/// Returns the positions along the slider at which there is a tick across it at \a across.
QVector<int> ticksAt(const PaintTheme &theme, const QImage &picture, Qt::Orientation orientation,
                     int across)
{
    QVector<int> positions;
    for (int i = 0; i < canvas.width(); ++i) {
        const QPoint point = orientation == Qt::Horizontal ? QPoint(i, across) : QPoint(across, i);
        if (theme.nameAt(picture, point) == text("InputForegroundBrush")) {
            positions.append(i);
        }
    }
    return positions;
}

} // namespace

/// The ticks of sliders.
class SliderTickPaintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ticks_data();
    void ticks();
    void ticksStandBelowTheHandle_data();
    void ticksStandBelowTheHandle();
    void tickIntervals_data();
    void tickIntervals();
    void ticksStayCountable_data();
    void ticksStayCountable();
    void disabledTicks();
    void scaledTicksAreCrisp();
};

void SliderTickPaintTest::ticks_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<QSlider::TickPosition>("position");
    QTest::addColumn<bool>("isBefore");
    QTest::addColumn<bool>("isAfter");
    const auto horizontal = Qt::Horizontal;
    const auto vertical = Qt::Vertical;
    QTest::newRow("none") << horizontal << QSlider::NoTicks << false << false;
    QTest::newRow("above") << horizontal << QSlider::TicksAbove << true << false;
    QTest::newRow("below") << horizontal << QSlider::TicksBelow << false << true;
    QTest::newRow("above and below") << horizontal << QSlider::TicksBothSides << true << true;
    QTest::newRow("left") << vertical << QSlider::TicksLeft << true << false;
    QTest::newRow("right") << vertical << QSlider::TicksRight << false << true;
    QTest::newRow("left and right") << vertical << QSlider::TicksBothSides << true << true;
}

void SliderTickPaintTest::ticks()
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(QSlider::TickPosition, position);
    QFETCH(bool, isBefore);
    QFETCH(bool, isAfter);
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionSlider option = sliderOption(orientation);
    option.subControls = QStyle::SC_SliderTickmarks;
    option.tickPosition = position;
    option.tickInterval = 25;
    const QImage picture = recorder.picture(QStyle::CC_Slider, option, nullptr, canvas);
    const QVector<int> positions{7, 32, 57, 82, 107};
    const QVector<int> none;
    for (int across = 0; across < 25; ++across) {
        const bool hasTick =
            (isBefore && across >= 1 && across <= 3) || (isAfter && across >= 21 && across <= 23);
        QCOMPARE(ticksAt(theme, picture, orientation, across), hasTick ? positions : none);
    }
}

void SliderTickPaintTest::ticksStandBelowTheHandle_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<bool>("upsideDown");
    QTest::newRow("horizontal") << Qt::Horizontal << false;
    QTest::newRow("horizontal, upside down") << Qt::Horizontal << true;
    QTest::newRow("vertical") << Qt::Vertical << false;
    QTest::newRow("vertical, upside down") << Qt::Vertical << true;
}

/// Each value has its tick in the middle of where its handle stands.
void SliderTickPaintTest::ticksStandBelowTheHandle()
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(bool, upsideDown);
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionSlider option = sliderOption(orientation);
    option.upsideDown = upsideDown;
    option.tickPosition = QSlider::TicksAbove;
    option.tickInterval = 20;
    option.subControls = QStyle::SC_SliderTickmarks;
    const QImage picture = recorder.picture(QStyle::CC_Slider, option, nullptr, canvas);
    QVector<int> expected;
    for (int value = 0; value <= 100; value += 20) {
        option.sliderPosition = value;
        const QRect handle =
            recorder.subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, nullptr);
        const int start = orientation == Qt::Horizontal ? handle.left() : handle.top();
        expected.append(upsideDown ? start + 6 : start + 7);
    }
    std::sort(expected.begin(), expected.end());
    QCOMPARE(ticksAt(theme, picture, orientation, 2), expected);
}

void SliderTickPaintTest::tickIntervals_data()
{
    QTest::addColumn<int>("tickInterval");
    QTest::addColumn<int>("singleStep");
    QTest::addColumn<int>("pageStep");
    QTest::addColumn<int>("count");
    QTest::newRow("interval") << 50 << 1 << 10 << 3;
    QTest::newRow("single step") << 0 << 20 << 50 << 6;
    QTest::newRow("single steps are too close") << 0 << 1 << 50 << 3;
    QTest::newRow("no steps") << 0 << 0 << 0 << 26;
    QTest::newRow("interval is too close") << 1 << 1 << 10 << 26;
    QTest::newRow("interval beyond the range") << 1000 << 1 << 10 << 1;
}

void SliderTickPaintTest::tickIntervals()
{
    QFETCH(int, tickInterval);
    QFETCH(int, singleStep);
    QFETCH(int, pageStep);
    QFETCH(int, count);
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionSlider option = sliderOption(Qt::Horizontal);
    option.subControls = QStyle::SC_SliderTickmarks;
    option.tickPosition = QSlider::TicksAbove;
    option.tickInterval = tickInterval;
    option.singleStep = singleStep;
    option.pageStep = pageStep;
    const QImage picture = recorder.picture(QStyle::CC_Slider, option, nullptr, canvas);
    QCOMPARE(ticksAt(theme, picture, Qt::Horizontal, 2).size(), count);
}

void SliderTickPaintTest::ticksStayCountable_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<QRect>("rect");
    const QRect usual(0, 0, 114, 25);
    QTest::newRow("all integers") << INT_MIN << INT_MAX << usual;
    QTest::newRow("all natural numbers") << 0 << INT_MAX << usual;
    QTest::newRow("one value") << INT_MAX << INT_MAX << usual;
    QTest::newRow("upside down") << 5 << -5 << usual;
    QTest::newRow("all integers, huge") << INT_MIN << INT_MAX << QRect(-7, 0, 1 << 25, 25);
}

/// A tick for each of four thousand million values would neither end nor be seen.
void SliderTickPaintTest::ticksStayCountable()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(QRect, rect);
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionSlider option = sliderOption(Qt::Horizontal);
    option.rect = rect;
    option.minimum = minimum;
    option.maximum = maximum;
    option.sliderPosition = minimum;
    option.tickPosition = QSlider::TicksAbove;
    option.tickInterval = 1;
    option.subControls = QStyle::SC_SliderTickmarks;
    CountingDevice device(canvas);
    QPainter painter(&device);
    recorder.drawComplexControl(QStyle::CC_Slider, &option, &painter);
    painter.end();
    // No more than a wide screen has room for, however long the slider.
    QVERIFY2(device.shapeCount() <= 5000, qPrintable(QString::number(device.shapeCount())));
    const QImage picture = recorder.picture(QStyle::CC_Slider, option, nullptr, canvas);
    const QVector<int> positions = ticksAt(theme, picture, Qt::Horizontal, 2);
    for (int i = 1; i < positions.size(); ++i) {
        QVERIFY(positions.at(i) - positions.at(i - 1) >= 3);
    }
    QCOMPARE(positions.isEmpty(), maximum < minimum);
}

void SliderTickPaintTest::disabledTicks()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionSlider option = sliderOption(Qt::Horizontal, QStyle::State_None);
    option.subControls = QStyle::SC_SliderTickmarks;
    option.tickPosition = QSlider::TicksBothSides;
    const QImage picture = recorder.picture(QStyle::CC_Slider, option, nullptr, canvas);
    QCOMPARE(theme.namesIn(picture), QStringList{text("InputForegroundBrushDisabled")});
}

/// The corners of the groove below them are antialiased; the ticks are not.
void SliderTickPaintTest::scaledTicksAreCrisp()
{
    const PaintTheme theme(PaintTheme::Radii{0, 2, 0, 0});
    const TARN::BaseStyle style;
    QStyleOptionSlider option = sliderOption(Qt::Horizontal);
    option.subControls = QStyle::SC_SliderGroove | QStyle::SC_SliderTickmarks;
    option.tickPosition = QSlider::TicksAbove;
    option.tickInterval = 10;
    const QColor ground(Qt::black);
    for (const qreal scale : {1.25, 1.5, 1.75}) {
        QImage picture(canvas * 2, QImage::Format_RGB32);
        picture.fill(ground);
        picture.setDevicePixelRatio(scale);
        QPainter painter(&picture);
        style.drawComplexControl(QStyle::CC_Slider, &option, &painter, nullptr);
        painter.end();
        int tickPixels = 0;
        for (int y = 0; y < int(8 * scale); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const bool isTick = theme.nameAt(picture, {x, y}) == text("InputForegroundBrush");
                QVERIFY(isTick || picture.pixelColor(x, y) == ground);
                tickPixels += int(isTick);
            }
        }
        QVERIFY(tickPixels >= 11);
    }
}

QTEST_MAIN(SliderTickPaintTest)
#include "SliderTickPaintTest.moc"
