#include "style/families/SliderRects.h"
#include "style/families/SliderSample.h"

#include <QtTest/QtTest>
#include <QtWidgets/QSlider>

#include <support/Text.h>
#include <support/geometry/FusionReference.h>
#include <support/painting/CallRecorder.h>
#include <support/painting/Pixels.h>
#include <support/themes/PaintTheme.h>

using TARN::BaseStyle;

Q_DECLARE_METATYPE(QStyle::SubControls)

/// The sizes, the rectangles and the parts of sliders.
class SliderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sliderGroove_data();
    void sliderGroove();
    void sliderHandle_data();
    void sliderHandle();
    void sliderHandleKeepsItsPosition();
    void sliderMetricsCanBeChanged();
    void sliderTickmarksAndOtherOptions();
    void size();
    void subControls_data();
    void subControls();
    void isMirrored();
    void focus();
};

void SliderTest::sliderGroove_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<bool>("isRange");
    QTest::addColumn<int>("minimumHeight");
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<QRect>("expected");
    QTest::addColumn<QRect>("expectedMirrored");
    const QRect wide(0, 0, 100, 25);
    const QRect high(0, 0, 24, 100);
    const auto horizontal = Qt::Horizontal;
    const auto vertical = Qt::Vertical;
    const QRect line(0, 10, 100, 5);
    const QRect upright(9, 0, 5, 100);
    const QRect uprightMirrored(10, 0, 5, 100);
    QTest::newRow("horizontal") << horizontal << false << 0 << wide << line << line;
    QTest::newRow("high") << horizontal << false << 20 << wide << line << line;
    QTest::newRow("moved") << horizontal << false << 0 << wide.translated(7, 9)
                           << line.translated(7, 9) << line.translated(7, 9);
    QTest::newRow("range") << horizontal << true << 0 << wide << QRect(0, 6, 100, 14)
                           << QRect(0, 6, 100, 14);
    QTest::newRow("low range") << horizontal << true << 13 << wide << QRect(0, 6, 100, 14)
                               << QRect(0, 6, 100, 14);
    QTest::newRow("high range") << horizontal << true << 20 << wide << QRect(0, 3, 100, 20)
                                << QRect(0, 3, 100, 20);
    QTest::newRow("vertical") << vertical << false << 0 << high << upright << uprightMirrored;
    QTest::newRow("vertical range") << vertical << true << 0 << QRect(0, 0, 25, 100)
                                    << QRect(7, 0, 12, 100) << QRect(6, 0, 12, 100);
    QTest::newRow("high vertical range") << vertical << true << 20 << QRect(0, 0, 25, 100)
                                         << QRect(7, 0, 12, 100) << QRect(6, 0, 12, 100);
}

void SliderTest::sliderGroove()
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(bool, isRange);
    QFETCH(int, minimumHeight);
    QFETCH(QRect, rect);
    QFETCH(QRect, expected);
    QFETCH(QRect, expectedMirrored);
    const BaseStyle style;
    QSlider slider(orientation);
    slider.setProperty("rangeSlider", isRange);
    slider.setMinimumHeight(minimumHeight);
    QStyleOptionSlider option = sliderOption(rect, orientation);
    const auto groove = [&](const QWidget *widget) {
        return style.subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove, widget);
    };
    QCOMPARE(groove(&slider), expected);
    if (!isRange) {
        QCOMPARE(groove(nullptr), expected);
    }
    option.direction = Qt::RightToLeft;
    QCOMPARE(groove(&slider), expectedMirrored);
}

void SliderTest::sliderHandle_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<bool>("isRange");
    QTest::addColumn<int>("minimumHeight");
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<int>("across");
    QTest::addColumn<int>("height");
    const QRect wide(0, 0, 100, 25);
    const QRect high(0, 0, 25, 100);
    QTest::newRow("horizontal") << Qt::Horizontal << false << 0 << wide << 6 << 14;
    QTest::newRow("high") << Qt::Horizontal << false << 20 << wide << 6 << 14;
    QTest::newRow("moved") << Qt::Horizontal << false << 0 << wide.translated(7, 9) << 15 << 14;
    QTest::newRow("range") << Qt::Horizontal << true << 0 << wide << 6 << 14;
    QTest::newRow("high range") << Qt::Horizontal << true << 20 << wide << 3 << 20;
    QTest::newRow("vertical") << Qt::Vertical << false << 0 << high << 6 << 14;
    QTest::newRow("vertical range") << Qt::Vertical << true << 20 << high << 6 << 20;
}

void SliderTest::sliderHandle()
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(bool, isRange);
    QFETCH(int, minimumHeight);
    QFETCH(QRect, rect);
    QFETCH(int, across);
    QFETCH(int, height);
    const BaseStyle style;
    const FusionReference reference;
    QSlider slider(orientation);
    slider.setProperty("rangeSlider", isRange);
    slider.setMinimumHeight(minimumHeight);
    QStyleOptionSlider option = sliderOption(rect, orientation);
    const auto handle = QStyle::SC_SliderHandle;
    for (const Qt::LayoutDirection direction : bothDirections) {
        option.direction = direction;
        const QRect fusion = reference.fusionRect(QStyle::CC_Slider, option, handle, &slider);
        const QPoint topLeft = orientation == Qt::Horizontal ? QPoint(fusion.left(), across)
                                                             : QPoint(across, fusion.top());
        const QRect logical(topLeft, QSize(14, height));
        QCOMPARE(style.subControlRect(QStyle::CC_Slider, &option, handle, &slider),
                 direction == Qt::LeftToRight ? logical : mirrored(logical, rect));
    }
}

void SliderTest::sliderHandleKeepsItsPosition()
{
    const BaseStyle style;
    QStyleOptionSlider option = sliderOption(QRect(0, 0, 100, 25), Qt::Horizontal);
    const auto left = [&](int position) {
        option.sliderPosition = position;
        return style.subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, nullptr)
            .left();
    };
    QCOMPARE(left(0), 0);
    QVERIFY(left(30) > left(0));
    QVERIFY(left(100) > left(30));
    QCOMPARE(left(100), 100 - 14);
}

void SliderTest::sliderMetricsCanBeChanged()
{
    const ChangedStyle style({{QStyle::PM_SliderLength, 18}, {QStyle::PM_SliderThickness, 21}});
    const QStyleOptionSlider option = sliderOption(QRect(0, 0, 100, 25), Qt::Horizontal);
    const auto part = [&](QStyle::SubControl control, const QWidget *widget) {
        return style.subControlRect(QStyle::CC_Slider, &option, control, widget);
    };
    QCOMPARE(part(QStyle::SC_SliderGroove, nullptr).height(), 8);
    QCOMPARE(part(QStyle::SC_SliderHandle, nullptr).size(), QSize(18, 18));
    QSlider slider(Qt::Horizontal);
    slider.setProperty("rangeSlider", true);
    QCOMPARE(part(QStyle::SC_SliderGroove, &slider).height(), 18);
}

void SliderTest::sliderTickmarksAndOtherOptions()
{
    const BaseStyle style;
    const FusionReference reference;
    const QSlider slider(Qt::Horizontal);
    QStyleOptionSlider option = sliderOption(QRect(0, 0, 100, 25), Qt::Horizontal);
    const auto tickmarks = QStyle::SC_SliderTickmarks;
    option.tickPosition = QSlider::TicksBelow;
    option.subControls = QStyle::SC_All;
    QCOMPARE(style.subControlRect(QStyle::CC_Slider, &option, tickmarks, &slider),
             reference.fusionRect(QStyle::CC_Slider, option, tickmarks, &slider));
    option.version = 0;
    compareWithFusion(QStyle::CC_Slider, option, &slider);
    QStyleOptionComplex plain;
    plain.rect = option.rect;
    compareWithFusion(QStyle::CC_Slider, plain, &slider);
}

void SliderTest::size()
{
    const BaseStyle style;
    const FusionReference reference;
    const ChangedStyle changed(
        {{QStyle::PM_SliderThickness, 20}, {QStyle::PM_SliderTickmarkOffset, 7}});
    const auto type = QStyle::CT_Slider;
    const QStyleOptionSlider option;
    for (const QSize &contents : {QSize(84, 10), QSize(84, 90)}) {
        const QSlider horizontal(Qt::Horizontal);
        const QSize wide = reference.fusionSize(type, option, contents, &horizontal);
        QCOMPARE(style.sizeFromContents(type, &option, contents, &horizontal),
                 QSize(wide.width(), 25));
        QCOMPARE(changed.sizeFromContents(type, &option, contents, &horizontal).height(), 34);
        const QSlider vertical(Qt::Vertical);
        const QSize high = reference.fusionSize(type, option, contents, &vertical);
        QCOMPARE(style.sizeFromContents(type, &option, contents, &vertical),
                 QSize(25, high.height()));
        QCOMPARE(changed.sizeFromContents(type, &option, contents, &vertical).width(), 34);
        const QWidget other;
        compareWithFusion(type, option, contents, &other);
        compareWithFusion(type, option, contents, nullptr);
    }
}

void SliderTest::subControls_data()
{
    QTest::addColumn<QStyle::SubControls>("subControls");
    QTest::addColumn<QStringList>("names");
    const QString grooveName = text("GrooveBackgroundBrush");
    const QString filledName = text("MainSubLevel1Brush");
    const QString foreground = text("InputForegroundBrush");
    QTest::newRow("none") << QStyle::SubControls() << QStringList();
    QTest::newRow("groove") << QStyle::SubControls(QStyle::SC_SliderGroove)
                            << QStringList{grooveName, filledName};
    QTest::newRow("handle") << QStyle::SubControls(QStyle::SC_SliderHandle)
                            << QStringList{foreground};
    QTest::newRow("ticks") << QStyle::SubControls(QStyle::SC_SliderTickmarks)
                           << QStringList{foreground};
}

void SliderTest::subControls()
{
    QFETCH(QStyle::SubControls, subControls);
    QFETCH(QStringList, names);
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionSlider option = sliderOption(Qt::Horizontal);
    option.subControls = subControls;
    option.tickPosition = QSlider::TicksBothSides;
    const QImage picture = recorder.picture(QStyle::CC_Slider, option, nullptr, canvas);
    QCOMPARE(theme.namesIn(picture), names);
}

/// The toolkit mirrors sliders by turning them upside down. Their direction mirrors nothing.
void SliderTest::isMirrored()
{
    const PaintTheme theme(PaintTheme::Radii{2, 2, 2, 2});
    CallRecorder recorder;
    QStyleOptionSlider option = sliderOption(Qt::Horizontal);
    option.subControls = QStyle::SC_All;
    option.tickPosition = QSlider::TicksBothSides;
    option.tickInterval = 25;
    option.sliderPosition = 40;
    const QSize size = option.rect.size();
    const QImage plain = recorder.picture(QStyle::CC_Slider, option, nullptr, size);
    const QImage reflection = plain.mirrored(true, false);
    QVERIFY(!areAlike(plain, reflection));
    option.upsideDown = true;
    QVERIFY(areAlike(recorder.picture(QStyle::CC_Slider, option, nullptr, size), reflection));
    option.direction = Qt::RightToLeft;
    QVERIFY(areAlike(recorder.picture(QStyle::CC_Slider, option, nullptr, size), reflection));
    option.upsideDown = false;
    QCOMPARE(recorder.picture(QStyle::CC_Slider, option, nullptr, size), plain);
}

void SliderTest::focus()
{
    const PaintTheme theme;
    CallRecorder recorder;
    recorder.stopAt("PE_FrameFocusRect");
    QStyleOptionSlider option = sliderOption(Qt::Horizontal);
    recorder.picture(QStyle::CC_Slider, option, nullptr, canvas);
    QCOMPARE(recorder.elements(), QStringList());
    option.state |= QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
    recorder.picture(QStyle::CC_Slider, option, nullptr, canvas);
    QCOMPARE(recorder.elements(), QStringList{text("PE_FrameFocusRect")});
    QCOMPARE(recorder.calls().front().rect, option.rect);
    QCOMPARE(recorder.calls().front().state, option.state);
}

QTEST_MAIN(SliderTest)
#include "SliderTest.moc"
