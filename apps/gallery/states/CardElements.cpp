#include "components/CardWidget.h"
#include "states/Families.h"
#include "states/SampleMaking.h"

#include <QtWidgets/QFocusFrame>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRubberBand>
#include <QtWidgets/QStatusBar>

using TARN::Components::CardWidget;

namespace TARN::Gallery {

namespace {

using Condition = ElementCondition;
using Frame = QStyleOptionFrame;

constexpr QSize partSize(100, 32);
constexpr QSize areaSize(100, 48);

const char *const header = "CardWidgetBase_Header";
const char *const contents = "CardWidgetBase_Contents";
const char *const footer = "CardWidgetBase_Footer";

WidgetMaker part(const char *which)
{
    return with(which, making<QWidget>());
}

WidgetMaker partBetween(const char *which, bool hasHeader, bool hasFooter)
{
    return with("headerVisible", with("footerVisible", part(which), hasFooter), hasHeader);
}

ElementSample cardPart(const char *title, const WidgetMaker &widget)
{
    return {QStyle::PE_Widget, title, passiveStates(), widget, plain(), partSize};
}

WidgetMaker shapedFrame(int shape, int shadow = QFrame::Plain)
{
    return making<QFrame>([=](QFrame &frame) { frame.setFrameStyle(shape | shadow); });
}

ElementSample frameSample(const char *title, const WidgetMaker &frame)
{
    return {QStyle::CE_ShapedFrame,      title,   passiveStates(), frame,
            describing<QFrame, Frame>(), partSize};
}

WidgetMaker rubberBand()
{
    return [] { return new QRubberBand(QRubberBand::Rectangle); };
}

/// Returns a rubber band that selects on a card.
QWidget *rubberBandOnCard()
{
    auto *card = new CardWidget(QString(), QString(), nullptr, nullptr);
    return new QRubberBand(QRubberBand::Rectangle, card);
}

WidgetMaker groupBox(bool isCheckable = false)
{
    return making<QGroupBox>([isCheckable](QGroupBox &box) {
        box.setTitle(sampleText);
        box.setCheckable(isCheckable);
        box.setChecked(false);
    });
}

OptionMaker groupBoxOption()
{
    return describing<QGroupBox, QStyleOptionGroupBox>([](QStyleOptionGroupBox &option) {
        option.activeSubControls = QStyle::SC_GroupBoxCheckBox;
    });
}

/// Returns the maker of the options of thin frames.
OptionMaker frameOption()
{
    return plain<Frame>([](Frame &option) {
        option.lineWidth = 1;
        option.frameShape = QFrame::StyledPanel;
    });
}

QVector<ElementSample> otherFrames()
{
    const auto bandOption = describing<QRubberBand, QStyleOptionRubberBand>();
    const auto button = making<QPushButton>();
    const ElementStates focused{ElementState(), Condition::KeyboardFocus};
    const ElementStates checkable = combined(buttonStates(), {ElementState(), Condition::Checked});
    return {
        {QStyle::PE_Frame, "Frame", passiveStates(), shapedFrame(QFrame::StyledPanel),
         describing<QFrame, Frame>(), partSize},
        {QStyle::PE_FrameGroupBox, "Frame of a group box", passiveStates(), groupBox(),
         frameOption(), areaSize},
        {QStyle::CC_GroupBox, "Group box", passiveStates(), groupBox(), groupBoxOption(), areaSize},
        {QStyle::CC_GroupBox, "Group box with a long title", passiveStates(),
         with("title", groupBox(), QString(40, u'W')), groupBoxOption(), partSize},
        {QStyle::CC_GroupBox, "Checkable group box", checkable, groupBox(true), groupBoxOption(),
         areaSize},
        {QStyle::PE_FrameFocusRect, "Focus", focused, button, plain<QStyleOptionFocusRect>(),
         partSize},
        {QStyle::CE_FocusFrame, "Focus frame", restingStates(), making<QFocusFrame>(), plain(),
         partSize},
        {QStyle::CE_RubberBand, "Rubber band", restingStates(), rubberBand(), bandOption, partSize},
        {QStyle::CE_RubberBand, "Rubber band on a card", restingStates(), rubberBandOnCard,
         bandOption, partSize},
    };
}

} // namespace

ElementFamily cardFamily()
{
    return {QLatin1String("card-states"),
            QLatin1String("Card states"),
            {
                cardPart("Header", partBetween(header, true, false)),
                cardPart("Header of an expandable card", with("expandable", part(header))),
                cardPart("Header of an inverted card", with("invertedAppearance", part(header))),
                cardPart("Header, square",
                         with("CardWidget_NoCornerRadius", partBetween(header, true, false))),
                cardPart("Header, frameless", with("shape", partBetween(header, true, false),
                                                   QVariant::fromValue(QFrame::NoFrame))),
                cardPart("Contents alone", partBetween(contents, false, false)),
                cardPart("Contents under a header", partBetween(contents, true, false)),
                cardPart("Contents above a footer", partBetween(contents, false, true)),
                cardPart("Contents between both", partBetween(contents, true, true)),
                cardPart("Contents, square",
                         with("CardWidget_NoCornerRadius", partBetween(contents, false, false))),
                cardPart("Footer", partBetween(footer, true, true)),
                cardPart("Footer of an expandable card", with("expandable", part(footer))),
                cardPart("Footer, square",
                         with("CardWidget_NoCornerRadius", partBetween(footer, true, true))),
            }};
}

ElementFamily frameFamily()
{
    return {QLatin1String("frame-states"), QLatin1String("Frame states"),
            QVector<ElementSample>{
                frameSample("Box", shapedFrame(QFrame::Box)),
                frameSample("Box, sunken", shapedFrame(QFrame::Box, QFrame::Sunken)),
                frameSample("Panel, raised", shapedFrame(QFrame::Panel, QFrame::Raised)),
                frameSample("Panel, sunken", shapedFrame(QFrame::Panel, QFrame::Sunken)),
                frameSample("Old panel, raised", shapedFrame(QFrame::WinPanel, QFrame::Raised)),
                frameSample("Old panel, sunken", shapedFrame(QFrame::WinPanel, QFrame::Sunken)),
                frameSample("Line", shapedFrame(QFrame::HLine)),
                frameSample("Line, vertical", shapedFrame(QFrame::VLine)),
                frameSample("Styled panel", shapedFrame(QFrame::StyledPanel)),
            } + otherFrames()};
}

ElementFamily tipAndStatusFamily()
{
    return {QLatin1String("tip-and-status-states"),
            QLatin1String("Tip and status states"),
            {
                {QStyle::PE_PanelTipLabel, "Tip", restingStates(), making<QLabel>(), plain<Frame>(),
                 partSize},
                {QStyle::PE_PanelStatusBar, "Status bar", passiveStates(), making<QStatusBar>(),
                 plain(), partSize},
                {QStyle::PE_FrameStatusBarItem, "Item of a status bar", passiveStates(),
                 making<QStatusBar>(), plain(), partSize},
            }};
}

} // namespace TARN::Gallery
