#include "style/families/ScrollBarSample.h"
#include "style/families/SliderRects.h"

#include <QtTest/QtTest>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyleFactory>

#include <support/Components.h>
#include <support/Text.h>
#include <support/geometry/FusionReference.h>
#include <support/painting/CallRecorder.h>
#include <support/themes/PaintTheme.h>

using TARN::BaseStyle;
using TARN::Components::MinimizedScrollBar;

/// The sizes, the rectangles and the parts of scroll bars.
class ScrollBarTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void minimized_data();
    void minimized();
    void minimizedInAScrollArea();
    void minimizedMetricsCanBeChanged();
    void otherScrollBars();
    void sizeOfMinimized();
    void sizeOfOthers();
    void parts();
    void absentParts();
    void minimizedBarHasNoButtons();
    void focus();
};

void ScrollBarTest::minimized_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("horizontal") << Qt::Horizontal << Qt::LeftToRight;
    QTest::newRow("horizontal, mirrored") << Qt::Horizontal << Qt::RightToLeft;
    QTest::newRow("vertical") << Qt::Vertical << Qt::LeftToRight;
    QTest::newRow("vertical, mirrored") << Qt::Vertical << Qt::RightToLeft;
}

void ScrollBarTest::minimized()
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

void ScrollBarTest::minimizedInAScrollArea()
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

void ScrollBarTest::minimizedMetricsCanBeChanged()
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

void ScrollBarTest::otherScrollBars()
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

void ScrollBarTest::sizeOfMinimized()
{
    const BaseStyle style;
    const FusionReference reference;
    const QSize contents(120, 90);
    const auto type = QStyle::CT_ScrollBar;
    for (const auto orientation : {Qt::Horizontal, Qt::Vertical}) {
        const MinimizedScrollBar scrollBar(orientation);
        QStyleOptionSlider option;
        scrollBar.initStyleOption(&option);
        QSize expected = reference.fusionSize(type, option, contents, &scrollBar);
        (orientation == Qt::Horizontal ? expected.rheight() : expected.rwidth()) = 5;
        QCOMPARE(style.sizeFromContents(type, &option, contents, &scrollBar), expected);
    }
    MinimizedScrollBar horizontal(Qt::Horizontal);
    horizontal.setStyle(new BaseStyle);
    horizontal.style()->setParent(&horizontal);
    QCOMPARE(horizontal.sizeHint().height(), 5);
}

void ScrollBarTest::sizeOfOthers()
{
    const QSize contents(120, 90);
    for (const auto orientation : {Qt::Horizontal, Qt::Vertical}) {
        MinimizedScrollBar scrollBar(orientation);
        QStyleOptionSlider option;
        scrollBar.initStyleOption(&option);
        const QStyleOptionComplex complex;
        compareWithFusion(QStyle::CT_ScrollBar, complex, contents, &scrollBar);
        scrollBar.setProperty("minimized", false);
        compareWithFusion(QStyle::CT_ScrollBar, option, contents, &scrollBar);
        const QScrollBar plain(orientation);
        compareWithFusion(QStyle::CT_ScrollBar, option, contents, &plain);
        compareWithFusion(QStyle::CT_ScrollBar, option, contents, nullptr);
    }
}

void ScrollBarTest::parts()
{
    const PaintTheme theme;
    CallRecorder recorder;
    for (const char *part : {"CE_ScrollBarSlider", "CE_ScrollBarAddLine", "CE_ScrollBarSubLine"}) {
        recorder.stopAt(part);
    }
    const QScrollBar scrollBar;
    for (const auto orientation : {Qt::Horizontal, Qt::Vertical}) {
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            QStyleOptionSlider option = scrollBarOption(QStyle::State_Enabled, orientation);
            option.direction = direction;
            recorder.picture(QStyle::CC_ScrollBar, option, &scrollBar, canvas);
            QCOMPARE(recorder.elements(),
                     (QStringList{text("CE_ScrollBarSubLine"), text("CE_ScrollBarAddLine"),
                                  text("CE_ScrollBarSlider")}));
            const auto rectOf = [&](QStyle::SubControl subControl) {
                return recorder.subControlRect(QStyle::CC_ScrollBar, &option, subControl,
                                               &scrollBar);
            };
            QCOMPARE(recorder.call("CE_ScrollBarSubLine").rect,
                     rectOf(QStyle::SC_ScrollBarSubLine));
            QCOMPARE(recorder.call("CE_ScrollBarAddLine").rect,
                     rectOf(QStyle::SC_ScrollBarAddLine));
            QCOMPARE(recorder.call("CE_ScrollBarSlider").rect, rectOf(QStyle::SC_ScrollBarSlider));
        }
    }
}

void ScrollBarTest::absentParts()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionSlider option = scrollBarOption(QStyle::State_Enabled, Qt::Horizontal);
    option.subControls = QStyle::SC_ScrollBarGroove;
    recorder.picture(QStyle::CC_ScrollBar, option, nullptr, canvas);
    QCOMPARE(recorder.elements(), QStringList());
    option.subControls = QStyle::SC_ScrollBarSlider;
    recorder.picture(QStyle::CC_ScrollBar, option, nullptr, canvas);
    QCOMPARE(recorder.elements(), QStringList{text("CE_ScrollBarSlider")});
}

void ScrollBarTest::minimizedBarHasNoButtons()
{
    const PaintTheme theme;
    CallRecorder recorder;
    const MinimizedScrollBar line(Qt::Vertical);
    QStyleOptionSlider option = scrollBarOption(QStyle::State_Enabled, Qt::Vertical);
    option.rect.setWidth(5);
    recorder.picture(QStyle::CC_ScrollBar, option, &line, canvas);
    QCOMPARE(recorder.elements(), QStringList{text("CE_ScrollBarSlider")});
}

void ScrollBarTest::focus()
{
    const PaintTheme theme;
    CallRecorder recorder;
    recorder.stopAt("PE_FrameFocusRect");
    QStyleOptionSlider option = scrollBarOption(QStyle::State_Enabled, Qt::Horizontal);
    recorder.picture(QStyle::CC_ScrollBar, option, nullptr, canvas);
    QVERIFY(!recorder.elements().contains(text("PE_FrameFocusRect")));
    option.state |= QStyle::State_HasFocus;
    recorder.picture(QStyle::CC_ScrollBar, option, nullptr, canvas);
    QCOMPARE(recorder.call("PE_FrameFocusRect").rect, option.rect);
}

QTEST_MAIN(ScrollBarTest)
#include "ScrollBarTest.moc"
