#include "components/ButtonGroupWidget.h"
#include "samples/Symbols.h"
#include "states/Families.h"
#include "states/SampleMaking.h"

#include <QtWidgets/QCommandLinkButton>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolButton>

using TARN::Components::ButtonGroupWidget;

namespace TARN::Gallery {

namespace {

using Condition = ElementCondition;
using Button = QStyleOptionButton;

constexpr QSize roundSize(30, 30);
constexpr int groupSize = 3;

WidgetMaker button()
{
    return making<QPushButton>([](QPushButton &button) { button.setText(sampleText); });
}

WidgetMaker checkable()
{
    return with("checkable", button());
}

WidgetMaker iconButton()
{
    return with("icon", button(), symbol("action.save"_s));
}

WidgetMaker roundButton()
{
    return with("text", with("circular", iconButton()), QString());
}

WidgetMaker menuButton()
{
    return making<QPushButton>([](QPushButton &button) {
        button.setText(sampleText);
        button.setMenu(new QMenu(&button));
    });
}

WidgetMaker commandLink()
{
    return making<QCommandLinkButton>(
        [](QCommandLinkButton &button) { button.setText(sampleText); });
}

OptionMaker buttonOption(const std::function<void(Button &)> &prepare = {})
{
    return describing<QPushButton, Button>(prepare);
}

void makeDefault(Button &option)
{
    option.features |= Button::DefaultButton;
}

/// Returns the maker of the button at \a index of a group of buttons.
WidgetMaker member(int index, ButtonGroupWidget::Kind kind)
{
    return [index, kind] {
        QStringList texts;
        for (int i = 0; i < groupSize; ++i) {
            texts.append(sampleText);
        }
        auto *group = new ButtonGroupWidget(texts, kind);
        group->setProperty("orientation", int(Qt::Horizontal));
        group->setProperty("ButtonGroupWidget_VisibleCount", groupSize);
        const QList<QPushButton *> buttons = group->findChildren<QPushButton *>();
        // One of them always is.
        buttons.at((index + 1) % groupSize)->setChecked(true);
        QPushButton *button = buttons.at(index);
        button->setFlat(false);
        button->setProperty("Button_VisibleIndex", index);
        return button;
    };
}

const ElementStates &checkableStates()
{
    static const ElementStates states =
        combined(markableStates(), {ElementState(), Condition::Checked});
    return states;
}

QVector<ElementSample> groupMembers()
{
    const ElementStates states = combined(buttonStates(), {ElementState(), Condition::Checked});
    const auto plainMember = [](int index) {
        return member(index, ButtonGroupWidget::Kind::Plain);
    };
    const auto step = [](int index) { return member(index, ButtonGroupWidget::Kind::Workflow); };
    return {
        {QStyle::PE_PanelButtonCommand, "First of a group", buttonStates(), plainMember(0),
         buttonOption()},
        {QStyle::PE_PanelButtonCommand, "Within a group", buttonStates(), plainMember(1),
         buttonOption()},
        {QStyle::PE_PanelButtonCommand, "Last of a group", buttonStates(), plainMember(2),
         buttonOption()},
        {QStyle::CE_PushButton, "Step of a workflow", states, step(1), buttonOption()},
    };
}

using ToolButton = QStyleOptionToolButton;

WidgetMaker toolButton(Qt::ToolButtonStyle style,
                       QToolButton::ToolButtonPopupMode mode = QToolButton::DelayedPopup,
                       bool hasMenu = false)
{
    return making<QToolButton>([=](QToolButton &button) {
        button.setText(sampleText);
        button.setIcon(symbol("action.save"_s));
        button.setToolButtonStyle(style);
        button.setPopupMode(mode);
        if (hasMenu) {
            button.setMenu(new QMenu(&button));
        }
    });
}

WidgetMaker iconToolButton()
{
    return toolButton(Qt::ToolButtonIconOnly);
}

WidgetMaker arrowButton()
{
    return making<QToolButton>([](QToolButton &button) { button.setArrowType(Qt::RightArrow); });
}

/// Returns the maker of the options of tool buttons, with \a part under the mouse.
OptionMaker toolOption(QStyle::SubControl part = QStyle::SC_ToolButton)
{
    return describing<QToolButton, ToolButton>([part](ToolButton &option) {
        option.activeSubControls = part;
        // Buttons of a tool bar rise under the mouse only; outside of one they are always raised.
        option.state &= ~QStyle::State_AutoRaise;
    });
}

OptionMaker autoRaised()
{
    return describing<QToolButton, ToolButton>([](ToolButton &option) {
        option.activeSubControls = QStyle::SC_ToolButton;
        option.state |= QStyle::State_AutoRaise;
    });
}

QVector<ElementSample> toolButtonParts()
{
    const QSize arrow(20, 20);
    return {
        {QStyle::PE_PanelButtonTool, "Panel", buttonStates(), iconToolButton(), toolOption(),
         roundSize},
        {QStyle::PE_FrameButtonTool, "Frame", buttonStates(), iconToolButton(), toolOption(),
         roundSize},
        {QStyle::PE_IndicatorButtonDropDown, "Drop-down part", buttonStates(), iconToolButton(),
         toolOption(), arrow},
        {QStyle::CE_ToolButtonLabel, "Label", passiveStates(),
         toolButton(Qt::ToolButtonTextBesideIcon), toolOption()},
        {QStyle::PE_IndicatorArrowDown, "Arrow down", buttonStates(), iconToolButton(),
         toolOption(), arrow},
        {QStyle::PE_IndicatorArrowLeft, "Arrow left", buttonStates(), iconToolButton(),
         toolOption(), arrow},
        {QStyle::PE_IndicatorArrowRight, "Arrow right", buttonStates(), iconToolButton(),
         toolOption(), arrow},
        {QStyle::PE_IndicatorArrowUp, "Arrow up", buttonStates(), iconToolButton(), toolOption(),
         arrow},
    };
}

} // namespace

ElementFamily buttonFamily()
{
    const ElementStates checked = combined(buttonStates(), {Condition::Checked});
    return {
        QLatin1String("button-states"), QLatin1String("Button states"),
        QVector<ElementSample>{
            {QStyle::CE_PushButton, "Push button", markableStates(), button(), buttonOption()},
            {QStyle::CE_PushButton, "Toggle button", checkableStates(), checkable(),
             buttonOption()},
            {QStyle::CE_PushButton, "Default button", buttonStates(), button(),
             buttonOption(makeDefault)},
            {QStyle::CE_PushButton, "Highlighted", buttonStates(), with("highlighted", button()),
             buttonOption()},
            {QStyle::CE_PushButton, "Flat", buttonStates(), with("flat", button()), buttonOption()},
            {QStyle::CE_PushButton, "Outline", buttonStates(), with("outline", checkable()),
             buttonOption()},
            {QStyle::CE_PushButton, "Frameless", buttonStates(), with("frameless", button()),
             buttonOption()},
            {QStyle::CE_PushButton, "With icon", buttonStates(), iconButton(), buttonOption()},
            {QStyle::CE_PushButton, "With menu", buttonStates(), menuButton(), buttonOption()},
            {QStyle::CE_PushButton, "Circular", buttonStates(), roundButton(), buttonOption(),
             roundSize},
            {QStyle::CE_PushButton, "Command link", buttonStates(), commandLink(), buttonOption()},
            {QStyle::CE_PushButtonBevel, "Bevel", checked, checkable(), buttonOption()},
            {QStyle::CE_PushButtonLabel, "Label", passiveStates(), iconButton(), buttonOption()},
            {QStyle::PE_PanelButtonBevel, "Panel of a bevel", buttonStates(), button(),
             buttonOption()},
            {QStyle::PE_FrameDefaultButton, "Frame of a default button", passiveStates(), button(),
             buttonOption(makeDefault)},
            {QStyle::PE_FrameButtonBevel, "Frame of a bevel", passiveStates(), button(),
             buttonOption()},
        } + groupMembers()};
}

ElementFamily toolButtonFamily()
{
    const ElementStates checkable = combined(buttonStates(), {ElementState(), Condition::Checked});
    return {
        QLatin1String("tool-button-states"), QLatin1String("Tool button states"),
        QVector<ElementSample>{
            {QStyle::CC_ToolButton, "Icon", checkable, iconToolButton(), toolOption(), roundSize},
            {QStyle::CC_ToolButton, "In a tool bar", checkable, iconToolButton(), autoRaised(),
             roundSize},
            {QStyle::CC_ToolButton, "Icon and text", buttonStates(),
             toolButton(Qt::ToolButtonTextBesideIcon), toolOption()},
            {QStyle::CC_ToolButton, "Text under icon", buttonStates(),
             toolButton(Qt::ToolButtonTextUnderIcon), toolOption(), QSize(60, 46)},
            {QStyle::CC_ToolButton, "Menu at once", buttonStates(),
             toolButton(Qt::ToolButtonIconOnly, QToolButton::InstantPopup, true), toolOption(),
             QSize(44, 30)},
            {QStyle::CC_ToolButton, "Menu beside", buttonStates(),
             toolButton(Qt::ToolButtonIconOnly, QToolButton::MenuButtonPopup, true), toolOption(),
             QSize(44, 30)},
            {QStyle::CC_ToolButton, "Menu beside, under the mouse", hoverableStates(),
             toolButton(Qt::ToolButtonIconOnly, QToolButton::MenuButtonPopup, true),
             toolOption(QStyle::SC_ToolButtonMenu), QSize(44, 30)},
            {QStyle::CC_ToolButton, "Arrow", buttonStates(), arrowButton(), toolOption(),
             roundSize},
            {QStyle::CC_ToolButton, "Circular", buttonStates(), with("circular", iconToolButton()),
             toolOption(), roundSize},
        } + toolButtonParts()};
}

} // namespace TARN::Gallery
