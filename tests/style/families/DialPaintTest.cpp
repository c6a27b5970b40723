#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QDial>

#include <climits>
#include <cmath>
#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/painting/CountingDevice.h>
#include <support/painting/Pixels.h>
#include <support/themes/PaintTheme.h>

namespace {

constexpr QSize size(100, 100);
/// The middle of a dial of this size is that of a pixel.
constexpr qreal middle = 49.5;

/// The circle on which the handle moves, without notches, and one that passes through the notches.
constexpr qreal radius = 40.5;
constexpr qreal amongNotches = 46;

QStyleOptionSlider dial(int position, QStyle::State state = QStyle::State_Enabled)
{
    QStyleOptionSlider option;
    option.rect = QRect(QPoint(), size);
    option.state = state;
    option.maximum = 100;
    option.sliderPosition = position;
    option.sliderValue = position;
    option.upsideDown = true;
    option.subControls = QStyle::SC_DialGroove | QStyle::SC_DialHandle;
    return option;
}

/// Returns the pixel at an angle, in degrees clockwise from twelve o'clock.
QPoint at(qreal angle, qreal distance = radius)
{
    const qreal radians = qDegreesToRadians(angle - 90);
    return {int(std::floor(middle + distance * std::cos(radians))),
            int(std::floor(middle + distance * std::sin(radians)))};
}

} // namespace

/// Dials, as the style paints them when it paints everything.
class DialPaintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void groove();
    void invertedGroove();
    void highlighted();
    void wrappingHasNoBeginning();
    void handle_data();
    void handle();
    void pressedWidget();
    void handleIsUnderTheMouse_data();
    void handleIsUnderTheMouse();
    void notches();
    void notchesStayCountable_data();
    void notchesStayCountable();
    void focus();
    void sameInBothDirections();
    void nothingBesideTheDial();
    void tooSmall();
    void needsItsOption();

private:
    QImage picture(const QStyleOptionSlider &option, const QWidget *widget = nullptr)
    {
        return m_recorder.picture(QStyle::CC_Dial, option, widget, size);
    }
    QString nameAt(const QImage &picture, const QPoint &pixel) const
    {
        return m_theme.nameNear(picture, pixel);
    }

    PaintTheme m_theme;
    CallRecorder m_recorder;
};

void DialPaintTest::groove()
{
    const QImage enabled = picture(dial(50));
    QCOMPARE(nameAt(enabled, at(-75)), text("MainSubLevel1Brush"));
    QCOMPARE(nameAt(enabled, at(0)), text("InputForegroundBrush"));
    QCOMPARE(nameAt(enabled, at(75)), text("GrooveBackgroundBrush"));
    QCOMPARE(enabled.pixelColor(at(180)), QColor(Qt::black));
    QCOMPARE(enabled.pixelColor(at(0, 0)), QColor(Qt::black));
    // The paler brush of what is disabled could hardly be seen.
    const QImage disabled = picture(dial(50, QStyle::State_None));
    QCOMPARE(nameAt(disabled, at(-75)), text("MainBrushDisabled"));
    QCOMPARE(nameAt(disabled, at(0)), text("InputForegroundBrushDisabled"));
    QCOMPARE(nameAt(disabled, at(75)), text("GrooveBackgroundBrushDisabled"));
}

void DialPaintTest::invertedGroove()
{
    QStyleOptionSlider option = dial(25);
    option.upsideDown = false;
    const QImage inverted = picture(option);
    QCOMPARE(nameAt(inverted, at(75)), text("InputForegroundBrush"));
    QCOMPARE(nameAt(inverted, at(120)), text("MainSubLevel1Brush"));
    QCOMPARE(nameAt(inverted, at(0)), text("GrooveBackgroundBrush"));
}

void DialPaintTest::highlighted()
{
    QDial widget;
    widget.setProperty("slider_highlighted", true);
    QCOMPARE(nameAt(picture(dial(50), &widget), at(-75)), text("MainBrush"));
}

void DialPaintTest::wrappingHasNoBeginning()
{
    QStyleOptionSlider option = dial(50);
    option.dialWrapping = true;
    const QImage wrapping = picture(option);
    for (const int angle : {-135, -75, 75, 135, 180}) {
        QCOMPARE(nameAt(wrapping, at(angle)), text("GrooveBackgroundBrush"));
    }
    QCOMPARE(nameAt(wrapping, at(0)), text("InputForegroundBrush"));
}

void DialPaintTest::handle_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("expected");
    const int enabled = QStyle::State_Enabled;
    QTest::newRow("at rest") << enabled << text("InputForegroundBrush");
    QTest::newRow("hovered") << (enabled | QStyle::State_MouseOver)
                             << text("SliderThumbNailHoverBrush");
    QTest::newRow("pressed") << (enabled | QStyle::State_MouseOver | QStyle::State_Sunken)
                             << text("SliderThumbNailPressedBrush");
    QTest::newRow("disabled") << int(QStyle::State_MouseOver)
                              << text("InputForegroundBrushDisabled");
}

void DialPaintTest::handle()
{
    QFETCH(int, state);
    QFETCH(QString, expected);
    QCOMPARE(nameAt(picture(dial(50, QStyle::State(state))), at(0)), expected);
}

/// The toolkit's option does not tell that a dial is turned.
void DialPaintTest::pressedWidget()
{
    QDial widget;
    widget.setSliderDown(true);
    QCOMPARE(nameAt(picture(dial(50), &widget), at(0)), text("SliderThumbNailPressedBrush"));
}

void DialPaintTest::handleIsUnderTheMouse_data()
{
    QTest::addColumn<bool>("isWrapping");
    QTest::addColumn<bool>("isInverted");
    QTest::addColumn<int>("angle");
    for (const int angle : {-140, -90, -30, 0, 60, 110}) {
        QTest::addRow("%d", angle) << false << false << angle;
        QTest::addRow("%d, inverted", angle) << false << true << angle;
        QTest::addRow("%d, wrapping", angle) << true << false << angle;
    }
}

/// Where the mouse is pressed, there is the handle.
void DialPaintTest::handleIsUnderTheMouse()
{
    QFETCH(bool, isWrapping);
    QFETCH(bool, isInverted);
    QFETCH(int, angle);
    QDial widget;
    widget.setStyle(const_cast<TARN::BaseStyle *>(&m_recorder.style()));
    widget.setRange(0, 1000);
    widget.setWrapping(isWrapping);
    widget.setInvertedAppearance(isInverted);
    widget.resize(size);
    QTest::mousePress(&widget, Qt::LeftButton, Qt::NoModifier, at(angle));
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::black);
    widget.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    QCOMPARE(nameAt(image, at(angle)), text("SliderThumbNailPressedBrush"));
}

void DialPaintTest::notches()
{
    QStyleOptionSlider option = dial(50);
    option.subControls = QStyle::SC_DialTickmarks;
    option.tickInterval = 25;
    const QImage notched = picture(option);
    QCOMPARE(nameAt(notched, at(0, amongNotches)), text("InputForegroundBrush"));
    for (const int angle : {-150, -75, 75, 150}) {
        QVERIFY(notched.pixelColor(at(angle, amongNotches)) != QColor(Qt::black));
    }
    for (const int angle : {-110, -37, 37, 110, 180}) {
        QCOMPARE(notched.pixelColor(at(angle, amongNotches)), QColor(Qt::black));
    }
    option.state = QStyle::State_None;
    QCOMPARE(nameAt(picture(option), at(0, amongNotches)), text("InputForegroundBrushDisabled"));
    // The handle makes room for them.
    option.subControls |= QStyle::SC_DialHandle;
    QCOMPARE(nameAt(picture(option), at(0, radius - 5)), text("InputForegroundBrushDisabled"));
}

void DialPaintTest::notchesStayCountable_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<QRect>("rect");
    const QRect usual(QPoint(), size);
    QTest::newRow("all integers") << INT_MIN << INT_MAX << usual;
    QTest::newRow("one value") << INT_MAX << INT_MAX << usual;
    QTest::newRow("upside down") << 5 << -5 << usual;
    QTest::newRow("huge") << INT_MIN << INT_MAX << QRect(0, 0, 1 << 25, 1 << 25);
}

void DialPaintTest::notchesStayCountable()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(QRect, rect);
    QStyleOptionSlider option = dial(minimum);
    option.rect = rect;
    option.minimum = minimum;
    option.maximum = maximum;
    option.tickInterval = 1;
    option.subControls = QStyle::SC_DialTickmarks;
    CountingDevice device(size);
    QPainter painter(&device);
    m_recorder.drawComplexControl(QStyle::CC_Dial, &option, &painter);
    painter.end();
    QVERIFY2(device.shapeCount() <= 5000, qPrintable(QString::number(device.shapeCount())));
    QCOMPARE(device.shapeCount() == 0, maximum < minimum);
}

void DialPaintTest::focus()
{
    picture(dial(50));
    QVERIFY(!m_recorder.elements().contains(text("PE_FrameFocusRect")));
    picture(dial(50, QStyle::State_Enabled | QStyle::State_HasFocus));
    QCOMPARE(m_recorder.call("PE_FrameFocusRect").rect, QRect(QPoint(), size));
}

/// That is how the toolkit reads the mouse.
void DialPaintTest::sameInBothDirections()
{
    QStyleOptionSlider option = dial(20);
    const QImage leftToRight = picture(option);
    option.direction = Qt::RightToLeft;
    QCOMPARE(picture(option), leftToRight);
}

void DialPaintTest::nothingBesideTheDial()
{
    QStyleOptionSlider option = dial(0);
    option.subControls = QStyle::SC_All;
    option.tickInterval = 5;
    option.rect = QRect(10, 20, 80, 60);
    for (const int position : {0, 25, 50, 75, 100}) {
        option.sliderPosition = position;
        const QRect square(20, 20, 60, 60);
        QVERIFY(square.contains(paintedRect(picture(option))));
    }
}

void DialPaintTest::tooSmall()
{
    QStyleOptionSlider option = dial(50);
    for (const QSize &small : {QSize(), QSize(100, 5), QSize(12, 100), QSize(-3, -3)}) {
        option.rect = QRect(QPoint(), small);
        QVERIFY(m_theme.namesIn(picture(option)).isEmpty());
    }
}

void DialPaintTest::needsItsOption()
{
    QStyleOptionComplex option;
    option.rect = QRect(QPoint(), size);
    option.state = QStyle::State_Enabled;
    QVERIFY(m_theme.namesIn(m_recorder.picture(QStyle::CC_Dial, option, nullptr, size)).isEmpty());
}

QTEST_MAIN(DialPaintTest)
#include "DialPaintTest.moc"
