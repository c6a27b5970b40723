#include "style/families/SliderSample.h"

#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QSlider>

#include <cmath>
#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/painting/CountingDevice.h>
#include <support/painting/Pixels.h>
#include <support/themes/PaintTheme.h>

Q_DECLARE_METATYPE(QStyle::State)

namespace {

constexpr QStyle::State enabled = QStyle::State_Enabled;

/// Returns the name at \a position along the middle of the groove. The groove of a slider that is
/// 25 pixels thick lies on the pixels 10 to 14.
QString grooveAt(const PaintTheme &theme, const QImage &picture, Qt::Orientation orientation,
                 int position)
{
    return theme.nameAt(picture, orientation == Qt::Horizontal ? QPoint(position, 12)
                                                               : QPoint(12, position));
}

} // namespace

/// Sliders. SliderTickPaintTest is about their ticks.
class SliderPaintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void groove_data();
    void groove();
    void filledPart_data();
    void filledPart();
    void filledPartEndsBelowTheHandle();
    void roundCorners();
    void rangeSliderFillsNothing();
    void highContrast_data();
    void highContrast();
    void handle_data();
    void handle();
    void handleIsRound();
    void sliderNeedsItsOption();
    void hugeAndEmptyRectangles();
};

void SliderPaintTest::groove_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<QString>("name");
    for (const auto orientation : {Qt::Horizontal, Qt::Vertical}) {
        const char *prefix = orientation == Qt::Horizontal ? "horizontal" : "vertical";
        QTest::addRow("%s", prefix) << orientation << enabled << text("GrooveBackgroundBrush");
        QTest::addRow("%s, disabled", prefix)
            << orientation << QStyle::State() << text("GrooveBackgroundBrushDisabled");
    }
}

void SliderPaintTest::groove()
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(QStyle::State, state);
    QFETCH(QString, name);
    const PaintTheme theme;
    CallRecorder recorder;
    const QStyleOptionSlider option = sliderOption(orientation, state);
    const QSlider slider;
    for (const QWidget *widget :
         {static_cast<const QWidget *>(nullptr), static_cast<const QWidget *>(&slider)}) {
        const QImage picture = recorder.picture(QStyle::CC_Slider, option, widget, canvas);
        QCOMPARE(grooveAt(theme, picture, orientation, 113), name);
        QCOMPARE(grooveAt(theme, picture, orientation, 114), QString());
        const QImage turned = orientation == Qt::Horizontal
                                  ? picture
                                  : picture.transformed(QTransform(0, 1, 1, 0, 0, 0));
        QCOMPARE(theme.nameAt(turned, {100, 10}), name);
        QCOMPARE(theme.nameAt(turned, {100, 14}), name);
        QCOMPARE(theme.nameAt(turned, {100, 9}), QString());
        QCOMPARE(theme.nameAt(turned, {100, 15}), QString());
    }
}

void SliderPaintTest::filledPart_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<bool>("upsideDown");
    QTest::addColumn<bool>("isHighlighted");
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<QString>("name");
    for (const auto orientation : {Qt::Horizontal, Qt::Vertical}) {
        const char *prefix = orientation == Qt::Horizontal ? "horizontal" : "vertical";
        for (const bool upsideDown : {false, true}) {
            const char *suffix = upsideDown ? ", upside down" : "";
            QTest::addRow("%s%s", prefix, suffix)
                << orientation << upsideDown << false << enabled << text("MainSubLevel1Brush");
            QTest::addRow("%s%s, highlighted", prefix, suffix)
                << orientation << upsideDown << true << enabled << text("MainBrush");
            QTest::addRow("%s%s, disabled", prefix, suffix)
                << orientation << upsideDown << false << QStyle::State()
                << text("MainSubLevel1BrushDisabled");
            QTest::addRow("%s%s, disabled and highlighted", prefix, suffix)
                << orientation << upsideDown << true << QStyle::State()
                << text("MainBrushDisabled");
        }
    }
}

/// The groove is filled from where the slider starts, which is the far end when it is upside down.
void SliderPaintTest::filledPart()
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(bool, upsideDown);
    QFETCH(bool, isHighlighted);
    QFETCH(QStyle::State, state);
    QFETCH(QString, name);
    const PaintTheme theme;
    CallRecorder recorder;
    QSlider slider;
    slider.setProperty("slider_highlighted", isHighlighted);
    QStyleOptionSlider option = sliderOption(orientation, state);
    option.upsideDown = upsideDown;
    const QImage picture = recorder.picture(QStyle::CC_Slider, option, &slider, canvas);
    QCOMPARE(grooveAt(theme, picture, orientation, upsideDown ? 113 : 0), name);
    QVERIFY(grooveAt(theme, picture, orientation, upsideDown ? 0 : 113) != name);
    QVERIFY(theme.nameOf(picture.pixelColor(0, 0)).isEmpty());
}

/// The handle is not drawn: the pixel in the middle of it tells where the filled part ends.
void SliderPaintTest::filledPartEndsBelowTheHandle()
{
    const PaintTheme theme;
    CallRecorder recorder;
    for (const auto orientation : {Qt::Horizontal, Qt::Vertical}) {
        for (const bool upsideDown : {false, true}) {
            for (const int value : {0, 30, 100}) {
                QStyleOptionSlider option = sliderOption(orientation);
                option.upsideDown = upsideDown;
                option.sliderPosition = value;
                const QRect handle = recorder.subControlRect(QStyle::CC_Slider, &option,
                                                             QStyle::SC_SliderHandle, nullptr);
                const int middle =
                    orientation == Qt::Horizontal ? handle.left() + 7 : handle.top() + 7;
                option.subControls = QStyle::SC_SliderGroove;
                const QImage picture = recorder.picture(QStyle::CC_Slider, option, nullptr, canvas);
                const QString filled = text("MainSubLevel1Brush");
                const QString empty = text("GrooveBackgroundBrush");
                QCOMPARE(grooveAt(theme, picture, orientation, middle - 1),
                         upsideDown ? empty : filled);
                QCOMPARE(grooveAt(theme, picture, orientation, middle),
                         upsideDown ? filled : empty);
            }
        }
    }
}

/// The groove is round at its ends; the filled part is straight below the handle.
void SliderPaintTest::roundCorners()
{
    const PaintTheme theme(PaintTheme::Radii{2, 2, 2, 2});
    CallRecorder recorder;
    QStyleOptionSlider option = sliderOption(Qt::Horizontal);
    option.subControls = QStyle::SC_SliderGroove;
    for (const bool upsideDown : {false, true}) {
        option.upsideDown = upsideDown;
        const QImage picture = recorder.picture(QStyle::CC_Slider, option, nullptr, canvas);
        for (const QPoint &corner :
             {QPoint(0, 10), QPoint(0, 14), QPoint(113, 10), QPoint(113, 14)}) {
            QCOMPARE(theme.nameAt(picture, corner), QString());
        }
        const QRect handle =
            recorder.subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, nullptr);
        const int last = upsideDown ? handle.left() + 7 : handle.left() + 6;
        QCOMPARE(theme.nameAt(picture, {last, 10}), text("MainSubLevel1Brush"));
        QCOMPARE(theme.nameAt(picture, {last, 14}), text("MainSubLevel1Brush"));
    }
}

void SliderPaintTest::rangeSliderFillsNothing()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QSlider slider;
    slider.setProperty("rangeSlider", true);
    QStyleOptionSlider option = sliderOption(Qt::Horizontal);
    option.subControls = QStyle::SC_SliderGroove;
    const QImage picture = recorder.picture(QStyle::CC_Slider, option, &slider, canvas);
    QCOMPARE(theme.namesIn(picture), QStringList{text("GrooveBackgroundBrush")});
}

void SliderPaintTest::highContrast_data()
{
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<bool>("isHighlighted");
    QTest::addColumn<QString>("twin");
    QTest::newRow("rest") << enabled << false << QString();
    QTest::newRow("highlighted") << enabled << true << QString();
    QTest::newRow("hovered") << (enabled | QStyle::State_MouseOver) << false << QString();
    QTest::newRow("pressed") << (enabled | QStyle::State_MouseOver | QStyle::State_Sunken) << false
                             << QString();
    QTest::newRow("focused") << (enabled | QStyle::State_HasFocus) << false << QString();
    QTest::newRow("disabled") << QStyle::State() << false << text("Disabled");
}

void SliderPaintTest::highContrast()
{
    QFETCH(QStyle::State, state);
    QFETCH(bool, isHighlighted);
    QFETCH(QString, twin);
    const PaintTheme theme;
    CallRecorder recorder;
    recorder.stopAt("PE_FrameFocusRect");
    QSlider slider;
    slider.setProperty("slider_high_contrast", true);
    slider.setProperty("slider_highlighted", isHighlighted);
    QStyleOptionSlider option = sliderOption(Qt::Horizontal, state);
    option.activeSubControls = QStyle::SC_SliderHandle;
    const QImage picture = recorder.picture(QStyle::CC_Slider, option, &slider, canvas);
    const QString border = text("HighContrastBorderBrush") + twin;
    QCOMPARE(theme.nameAt(picture, {113, 12}), border);
    QCOMPARE(theme.nameAt(picture, {80, 10}), border);
    QCOMPARE(theme.nameAt(picture, {80, 14}), border);
    QCOMPARE(theme.nameAt(picture, {80, 12}), text("HighContrastBackgroundBrush") + twin);
    // The filled part and the handle have an outline, too.
    QCOMPARE(theme.nameAt(picture, {0, 12}), border);
    QCOMPARE(theme.nameAt(picture, {10, 10}), border);
    QCOMPARE(theme.nameAt(picture, {10, 12}),
             (isHighlighted ? text("MainBrush") : text("MainSubLevel1Brush")) + twin);
    QVERIFY(!theme.shows(picture, text("GrooveBackgroundBrush") + twin));
    const QRect handle =
        recorder.subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, &slider);
    QVERIFY(areAlike(picture.pixelColor(handle.center().x(), handle.top()), theme.brush(border)));
}

void SliderPaintTest::handle_data()
{
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<bool>("isActive");
    QTest::addColumn<QString>("name");
    const QStyle::State hovered = enabled | QStyle::State_MouseOver;
    QTest::newRow("rest") << enabled << false << text("InputForegroundBrush");
    QTest::newRow("hovered") << hovered << true << text("SliderThumbNailHoverBrush");
    QTest::newRow("hovered beside the handle") << hovered << false << text("InputForegroundBrush");
    QTest::newRow("pressed") << (hovered | QStyle::State_Sunken) << true
                             << text("SliderThumbNailPressedBrush");
    QTest::newRow("dragged away from the mouse")
        << (enabled | QStyle::State_Sunken) << true << text("SliderThumbNailPressedBrush");
    QTest::newRow("pressed beside the handle")
        << (hovered | QStyle::State_Sunken) << false << text("InputForegroundBrush");
    QTest::newRow("disabled") << QStyle::State() << false << text("InputForegroundBrushDisabled");
    QTest::newRow("disabled and hovered")
        << QStyle::State(QStyle::State_MouseOver) << true << text("InputForegroundBrushDisabled");
}

void SliderPaintTest::handle()
{
    QFETCH(QStyle::State, state);
    QFETCH(bool, isActive);
    QFETCH(QString, name);
    const PaintTheme theme;
    CallRecorder recorder;
    for (const auto orientation : {Qt::Horizontal, Qt::Vertical}) {
        QStyleOptionSlider option = sliderOption(orientation, state);
        option.activeSubControls = isActive ? QStyle::SC_SliderHandle : QStyle::SC_SliderGroove;
        const QRect rect =
            recorder.subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, nullptr);
        const QImage picture = recorder.picture(QStyle::CC_Slider, option, nullptr, canvas);
        QCOMPARE(theme.nameAt(picture, rect.center()), name);
        QCOMPARE(theme.nameAt(picture, {rect.center().x(), rect.top() + 1}), name);
    }
}

void SliderPaintTest::handleIsRound()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QSlider slider;
    slider.setProperty("rangeSlider", true);
    slider.setMinimumHeight(22);
    const QSlider plain;
    for (const QSlider *widget : {&plain, static_cast<const QSlider *>(&slider)}) {
        QStyleOptionSlider option = sliderOption(Qt::Horizontal);
        option.subControls = QStyle::SC_SliderHandle;
        const QRect rect =
            recorder.subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, widget);
        QCOMPARE(rect.height(), widget == &plain ? 14 : 22);
        const QImage picture = recorder.picture(QStyle::CC_Slider, option, widget, canvas);
        for (int y = 0; y < canvas.height(); ++y) {
            for (int x = 0; x < canvas.width(); ++x) {
                const double across =
                    (x + 0.5 - rect.left() - rect.width() / 2.0) / (rect.width() / 2.0);
                const double along =
                    (y + 0.5 - rect.top() - rect.height() / 2.0) / (rect.height() / 2.0);
                const double distance = std::sqrt(across * across + along * along);
                const QString name = theme.nameAt(picture, {x, y});
                // Pixels on the edge of the ellipse are mixed.
                if (distance < 0.85) {
                    QCOMPARE(name, text("InputForegroundBrush"));
                } else if (distance > 1.15) {
                    QCOMPARE(picture.pixelColor(x, y), QColor(Qt::black));
                }
            }
        }
    }
}

void SliderPaintTest::sliderNeedsItsOption()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionComplex option;
    option.rect = QRect(0, 0, 114, 25);
    option.state = QStyle::State_Enabled;
    QCOMPARE(theme.namesIn(recorder.picture(QStyle::CC_Slider, option, nullptr, canvas)),
             QStringList());
}

void SliderPaintTest::hugeAndEmptyRectangles()
{
    const PaintTheme theme(PaintTheme::Radii{4, 4, 4, 4});
    CallRecorder recorder;
    constexpr int far = 1 << 24;
    for (const auto orientation : {Qt::Horizontal, Qt::Vertical}) {
        for (const QRect &rect : {QRect(), QRect(0, 0, 1, 1), QRect(5, 5, -20, -20),
                                  QRect(QPoint(-far, -far), QPoint(far, far))}) {
            QStyleOptionSlider option = sliderOption(orientation);
            option.rect = rect;
            option.subControls = QStyle::SC_All;
            option.tickPosition = QSlider::TicksBothSides;
            CountingDevice device(canvas);
            QPainter painter(&device);
            recorder.drawComplexControl(QStyle::CC_Slider, &option, &painter);
            // A tick for each of a hundred values on both sides, and the slider.
            QVERIFY2(device.shapeCount() <= 220, qPrintable(QString::number(device.shapeCount())));
            recorder.picture(QStyle::CC_Slider, option, nullptr, canvas);
        }
    }
}

QTEST_MAIN(SliderPaintTest)
#include "SliderPaintTest.moc"
