#include <QtTest/QtTest>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QSlider>
#include <QtWidgets/QStyleFactory>
#include <QtWidgets/QStyleOption>

#include <support/Components.h>
#include <support/Text.h>
#include <support/geometry/FusionReference.h>

using TARN::BaseStyle;
using TARN::Components::MinimizedScrollBar;

namespace {

constexpr Qt::LayoutDirection bothDirections[] = {Qt::LeftToRight, Qt::RightToLeft};

QRect mirrored(const QRect &rect, const QRect &within)
{
    QRect result = rect;
    result.moveLeft(within.left() + within.right() - rect.right());
    return result;
}

QStyleOptionSlider sliderOption(const QRect &rect, Qt::Orientation orientation)
{
    QStyleOptionSlider option;
    option.rect = rect;
    option.orientation = orientation;
    option.state = QStyle::State_Enabled;
    if (orientation == Qt::Horizontal) {
        option.state |= QStyle::State_Horizontal;
    }
    option.maximum = 100;
    option.sliderPosition = 30;
    option.sliderValue = 30;
    option.pageStep = 10;
    option.upsideDown = orientation == Qt::Vertical;
    return option;
}

} // namespace

/// The rectangles of the parts of sliders and scroll bars.
class SliderGeometryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void minimizedScrollBar_data();
    void minimizedScrollBar();
    void minimizedScrollBarInAScrollArea();
    void minimizedScrollBarMetricsCanBeChanged();
    void otherScrollBars();
    void sliderGroove_data();
    void sliderGroove();
    void sliderHandle_data();
    void sliderHandle();
    void sliderHandleKeepsItsPosition();
    void sliderMetricsCanBeChanged();
    void sliderTickmarksAndOtherOptions();
};

void SliderGeometryTest::minimizedScrollBar_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("horizontal") << Qt::Horizontal << Qt::LeftToRight;
    QTest::newRow("horizontal, mirrored") << Qt::Horizontal << Qt::RightToLeft;
    QTest::newRow("vertical") << Qt::Vertical << Qt::LeftToRight;
    QTest::newRow("vertical, mirrored") << Qt::Vertical << Qt::RightToLeft;
}

void SliderGeometryTest::minimizedScrollBar()
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(Qt::LayoutDirection, direction);
    const bool isHorizontal = orientation == Qt::Horizontal;
    const BaseStyle style;
    const FusionReference reference;
    const MinimizedScrollBar scrollBar(orientation);
    QStyleOptionSlider option =
        sliderOption(isHorizontal ? QRect(0, 0, 200, 5) : QRect(0, 0, 5, 200), orientation);
    option.direction = direction;
    const auto part = [&](QStyle::SubControl control) {
        return style.subControlRect(QStyle::CC_ScrollBar, &option, control, &scrollBar);
    };
    const auto fusionPart = [&](QStyle::SubControl control) {
        return reference.fusionRect(QStyle::CC_ScrollBar, option, control, &scrollBar);
    };
    for (const auto empty : {QStyle::SC_ScrollBarAddLine, QStyle::SC_ScrollBarSubLine,
                             QStyle::SC_ScrollBarAddPage, QStyle::SC_ScrollBarSubPage}) {
        QCOMPARE(part(empty), QRect());
    }
    QCOMPARE(part(QStyle::SC_ScrollBarGroove), option.rect);
    for (const auto other : {QStyle::SC_ScrollBarFirst, QStyle::SC_ScrollBarLast}) {
        QCOMPARE(part(other), fusionPart(other));
    }
    const QRect slider = fusionPart(QStyle::SC_ScrollBarSlider);
    QCOMPARE(part(QStyle::SC_ScrollBarSlider),
             isHorizontal ? slider.adjusted(-15, 0, 15, 0) : slider.adjusted(0, -15, 0, 15));
}

void SliderGeometryTest::minimizedScrollBarInAScrollArea()
{
    const BaseStyle style;
    const FusionReference reference;
    QScrollArea area;
    area.setFrameStyle(QFrame::Box);
    area.setLineWidth(3);
    QCOMPARE(area.frameWidth(), 3);
    // The nearest scroll area counts, at whatever distance it is.
    QScrollArea outerArea;
    outerArea.setFrameStyle(QFrame::NoFrame);
    outerArea.setWidget(&area);
    QWidget between(&area);
    const MinimizedScrollBar horizontal(Qt::Horizontal, &between);
    const MinimizedScrollBar vertical(Qt::Vertical, &area);
    const auto control = QStyle::SC_ScrollBarSlider;

    const QStyleOptionSlider wide = sliderOption(QRect(0, 0, 200, 5), Qt::Horizontal);
    const QRect wideSlider = reference.fusionRect(QStyle::CC_ScrollBar, wide, control, &horizontal);
    QCOMPARE(style.subControlRect(QStyle::CC_ScrollBar, &wide, control, &horizontal),
             wideSlider.adjusted(-18, 0, 18, 3));
    const QStyleOptionSlider high = sliderOption(QRect(0, 0, 5, 200), Qt::Vertical);
    const QRect highSlider = reference.fusionRect(QStyle::CC_ScrollBar, high, control, &vertical);
    QCOMPARE(style.subControlRect(QStyle::CC_ScrollBar, &high, control, &vertical),
             highSlider.adjusted(3, -18, 0, 18));
    outerArea.takeWidget();
}

void SliderGeometryTest::minimizedScrollBarMetricsCanBeChanged()
{
    const MinimizedScrollBar scrollBar(Qt::Horizontal);
    const QStyleOptionSlider option = sliderOption(QRect(0, 0, 200, 5), Qt::Horizontal);
    const auto slider = [&](const QStyle &style) {
        return style.subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider,
                                    &scrollBar);
    };
    const QMap<int, int> wide = {{QStyle::PM_ScrollBarExtent, 20}};
    const QMap<int, int> shown = {{QStyle::SH_ScrollBar_Transient, 1}};
    const ChangedStyle wider(wide);
    const ChangedStyle widerFusion(wide, {}, QStyleFactory::create(text("fusion")));
    QCOMPARE(slider(wider), slider(widerFusion).adjusted(-19, 0, 19, 0));
    // A transient scroll bar has no buttons whose room there is to take.
    const ChangedStyle transient({}, shown);
    const ChangedStyle transientFusion({}, shown, QStyleFactory::create(text("fusion")));
    QCOMPARE(slider(transient), slider(transientFusion).adjusted(1, 0, -1, 0));
}

void SliderGeometryTest::otherScrollBars()
{
    for (const auto orientation : {Qt::Horizontal, Qt::Vertical}) {
        const QStyleOptionSlider option = sliderOption(QRect(0, 0, 200, 160), orientation);
        const QScrollBar plain(orientation);
        compareWithFusion(QStyle::CC_ScrollBar, option, &plain);
        compareWithFusion(QStyle::CC_ScrollBar, option, nullptr);
        MinimizedScrollBar scrollBar(orientation);
        scrollBar.setProperty("minimized", false);
        compareWithFusion(QStyle::CC_ScrollBar, option, &scrollBar);
        scrollBar.setProperty("minimized", true);
        QStyleOptionComplex otherOption;
        otherOption.rect = option.rect;
        compareWithFusion(QStyle::CC_ScrollBar, otherOption, &scrollBar);
    }
}

void SliderGeometryTest::sliderGroove_data()
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

void SliderGeometryTest::sliderGroove()
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

void SliderGeometryTest::sliderHandle_data()
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

void SliderGeometryTest::sliderHandle()
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

void SliderGeometryTest::sliderHandleKeepsItsPosition()
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

void SliderGeometryTest::sliderMetricsCanBeChanged()
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

void SliderGeometryTest::sliderTickmarksAndOtherOptions()
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

QTEST_MAIN(SliderGeometryTest)
#include "SliderGeometryTest.moc"
