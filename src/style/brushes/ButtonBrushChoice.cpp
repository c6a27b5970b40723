#include "style/brushes/ButtonBrushChoice.h"

#include "catalogue/ComposedBrushes.h"
#include "catalogue/Names.h"
#include "catalogue/Words.h"
#include "style/asking/Classes.h"
#include "style/asking/OptionState.h"
#include "style/asking/Properties.h"
#include "style/brushes/KeptBrushes.h"

#include <QtGui/QCursor>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QCommandLinkButton>
#include <QtWidgets/QDateTimeEdit>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTimeEdit>

#include <algorithm>

namespace TARN {

namespace {

/// Tells whether the list of \a comboBox is open. QComboBox::view() would create the list.
bool isPopupVisible(const QComboBox &comboBox)
{
    const QObjectList &children = comboBox.children();
    return std::any_of(children.cbegin(), children.cend(), [](const QObject *child) {
        const auto *frame = qobject_cast<const QFrame *>(child);
        return frame && frame->isVisible() && isA(frame, "QComboBoxPrivateContainer");
    });
}

/// Tells whether the editor of an editable combo box has the focus.
bool isEditorFocused(const QComboBox &comboBox)
{
    const auto *editor = comboBox.findChild<QLineEdit *>();
    return editor && editor->hasFocus();
}

const KindWord &highlightedKind()
{
    static const KindWord kind{QString(Words::highlighted)};
    return kind;
}

constexpr StateWord uncheckedHover{CheckState::Unchecked, Interaction::Hover};

/// Chooses the brushes of one button, or of the button-like part of an input: first by name from
/// what the button is and its state, then by the exceptions that some kinds of buttons make.
class ButtonBrushChooser
{
public:
    ButtonBrushChooser(const QStyleOption &option, const QWidget *widget);

    ButtonBrushes choose();

private:
    bool has(QStyle::StateFlag flag) const { return m_option.state.testFlag(flag); }
    bool hovered() const { return has(QStyle::State_MouseOver) && has(QStyle::State_Enabled); }
    bool hasFeature(QStyleOptionButton::ButtonFeature feature) const;

    KindWord kindWord() const;
    StateWord stateWord() const;
    CheckState checkState() const;
    bool menuArrowPressed() const;

    QBrush brush(ComposedWidget widget, const KindWord &kind, StateWord state,
                 BrushField field) const
    {
        return composedBrush(widget, kind, state, field, m_enabled);
    }
    QBrush buttonBrush(BrushField field) const;
    QBrush inputBrush(BrushField field) const;
    const QBrush &mainBrush() const { return themeBrush(BrushName::MainBrush, m_enabled); }
    const QBrush &cardBorderBrush() const;

    void chooseByName();
    void chooseForFlatButton();
    void chooseForOutlineButton();
    void chooseForInput();
    void chooseForCalendarEdit(const QDateTimeEdit &edit);
    void chooseForSpinBox();
    void chooseForComboBox(const QComboBox &comboBox);
    void chooseForCommandLink();
    void chooseForTabBarButton();
    void chooseForWorkflowButton();

    const QStyleOption &m_option;
    const QStyleOptionButton *m_pushButton;
    const QWidget *m_widget;
    const QObject *m_parent;
    bool m_enabled;
    bool m_checkable;
    KindWord m_kind;
    StateWord m_state;
    ButtonBrushes m_brushes;
};

ButtonBrushChooser::ButtonBrushChooser(const QStyleOption &option, const QWidget *widget)
    : m_option(option)
    , m_pushButton(qstyleoption_cast<const QStyleOptionButton *>(&option))
    , m_widget(widget)
    , m_parent(widget ? widget->parent() : nullptr)
    , m_enabled(!widget || widget->isEnabled())
    , m_checkable(isSet(widget, Property::Checkable))
    , m_kind(kindWord())
    , m_state(stateWord())
{
}

ButtonBrushes ButtonBrushChooser::choose()
{
    chooseByName();
    chooseForFlatButton();
    chooseForOutlineButton();
    chooseForInput();
    chooseForCommandLink();
    chooseForTabBarButton();
    chooseForWorkflowButton();
    return m_brushes;
}

bool ButtonBrushChooser::hasFeature(QStyleOptionButton::ButtonFeature feature) const
{
    return m_pushButton && m_pushButton->features.testFlag(feature);
}

KindWord ButtonBrushChooser::kindWord() const
{
    if (isSet(m_widget, Property::Highlighted)) {
        return highlightedKind();
    }
    for (const Property property : {Property::Status, Property::Order, Property::ButtonType}) {
        const QString kind = textOf(m_widget, property);
        if (!kind.isEmpty()) {
            return KindWord(kind);
        }
    }
    return {};
}

StateWord ButtonBrushChooser::stateWord() const
{
    const bool calendarButton =
        m_widget && m_widget->objectName().contains(QLatin1String("qt_calendar_"));
    if ((calendarButton && !has(QStyle::State_Sunken)) || menuArrowPressed()) {
        return uncheckedHover;
    }
    if (has(QStyle::State_Sunken)) {
        return {checkState(), Interaction::Pressed};
    }
    return {checkState(), hovered() ? Interaction::Hover : Interaction::None};
}

CheckState ButtonBrushChooser::checkState() const
{
    if (isSet(m_widget, Property::Blinking)) {
        return isSet(m_widget, Property::BlinkChecked) ? CheckState::Checked
                                                       : CheckState::Unchecked;
    }
    if (hasFeature(QStyleOptionButton::DefaultButton) && has(QStyle::State_Enabled) &&
        has(QStyle::State_Active)) {
        return CheckState::Default;
    }
    return has(QStyle::State_On) ? CheckState::Checked : CheckState::Unchecked;
}

/// Pressing the menu arrow of a tool button leaves its face looking merely hovered.
bool ButtonBrushChooser::menuArrowPressed() const
{
    const auto *toolButton = qstyleoption_cast<const QStyleOptionToolButton *>(&m_option);
    if (!toolButton || !m_widget || !toolButton->subControls.testFlag(QStyle::SC_ToolButtonMenu) ||
        !has(QStyle::State_Sunken) || has(QStyle::State_On)) {
        return false;
    }
    const QPoint mouse = m_widget->mapFromGlobal(QCursor::pos());
    return QApplication::style()->hitTestComplexControl(QStyle::CC_ToolButton, toolButton, mouse,
                                                        m_widget) == QStyle::SC_ToolButtonMenu;
}

QBrush ButtonBrushChooser::buttonBrush(BrushField field) const
{
    const ComposedWidget widget =
        m_checkable ? ComposedWidget::ToggleButton : ComposedWidget::Button;
    return brush(widget, m_kind, m_state, field);
}

QBrush ButtonBrushChooser::inputBrush(BrushField field) const
{
    return brush(ComposedWidget::Input, m_kind, m_state, field);
}

const QBrush &ButtonBrushChooser::cardBorderBrush() const
{
    return TARN::cardBorderBrush(has(QStyle::State_Enabled));
}

void ButtonBrushChooser::chooseByName()
{
    m_brushes.background = buttonBrush(BrushField::Background);
    m_brushes.border = buttonBrush(BrushField::Border);
    m_brushes.foreground = buttonBrush(BrushField::Foreground);
}

void ButtonBrushChooser::chooseForFlatButton()
{
    if (!hasFeature(QStyleOptionButton::Flat)) {
        return;
    }
    m_brushes.border = m_brushes.background;
    const bool prominent = isSet(m_widget, Property::Highlighted) || m_kind.name() == Words::borea;
    if (prominent && has(QStyle::State_Sunken)) {
        m_brushes.foreground = brush(ComposedWidget::Button, highlightedKind(), uncheckedHover,
                                     BrushField::Foreground);
    }
}

void ButtonBrushChooser::chooseForOutlineButton()
{
    if (!isSet(m_widget, Property::Outline)) {
        return;
    }
    if (hovered() && has(QStyle::State_On) && !has(QStyle::State_Sunken)) {
        m_brushes.border =
            brush(ComposedWidget::Button, m_kind, uncheckedHover, BrushField::Background);
        return;
    }
    m_brushes.border = m_brushes.background;
    if (!has(QStyle::State_On) && !hovered() && !has(QStyle::State_Sunken)) {
        m_brushes.foreground = Qt::NoBrush;
    }
}

void ButtonBrushChooser::chooseForInput()
{
    const auto *edit = qobject_cast<const QDateTimeEdit *>(m_widget);
    if (edit && !qobject_cast<const QTimeEdit *>(m_widget) && edit->calendarPopup()) {
        chooseForCalendarEdit(*edit);
    } else if (isLike<QAbstractSpinBox>(m_widget)) {
        chooseForSpinBox();
    } else if (const auto *comboBox = qobject_cast<const QComboBox *>(m_widget)) {
        chooseForComboBox(*comboBox);
    }
}

void ButtonBrushChooser::chooseForCalendarEdit(const QDateTimeEdit &edit)
{
    m_brushes.background = inputBrush(BrushField::Background);
    if (!edit.hasFrame()) {
        m_brushes.border = m_brushes.background;
    } else {
        m_brushes.border = edit.hasFocus() ? mainBrush() : inputBrush(BrushField::Border);
    }
}

void ButtonBrushChooser::chooseForSpinBox()
{
    // Spin boxes show no hover shade: only their buttons do.
    m_brushes.background =
        hovered() ? brush(ComposedWidget::Input, KindWord(), StateWord(), BrushField::Background)
                  : inputBrush(BrushField::Background);
    m_brushes.border = m_brushes.background;
}

void ButtonBrushChooser::chooseForComboBox(const QComboBox &comboBox)
{
    m_brushes.background = inputBrush(BrushField::Background);
    m_brushes.border = inputBrush(BrushField::Border);
    m_brushes.foreground = inputBrush(BrushField::Foreground);
    if (!comboBox.hasFrame()) {
        m_brushes.border = m_brushes.background;
    } else if (isPopupVisible(comboBox)) {
        m_brushes.border = cardBorderBrush();
    } else if (comboBox.isEditable() && isEditorFocused(comboBox)) {
        m_brushes.border = mainBrush();
    }
}

void ButtonBrushChooser::chooseForCommandLink()
{
    if (!hasFeature(QStyleOptionButton::DefaultButton) || !isLike<QCommandLinkButton>(m_widget)) {
        return;
    }
    if (has(QStyle::State_Enabled) && !has(QStyle::State_On) && !has(QStyle::State_MouseOver) &&
        !has(QStyle::State_Sunken)) {
        m_brushes.foreground = Qt::NoBrush;
    }
}

void ButtonBrushChooser::chooseForTabBarButton()
{
    if (isLike<QTabBar>(m_parent)) {
        m_brushes.border = cardBorderBrush();
    }
}

void ButtonBrushChooser::chooseForWorkflowButton()
{
    if (!isSet(m_parent, Property::ButtonGroupWorkflow)) {
        return;
    }
    if (isSet(m_parent, Property::ButtonGroupExclusive)) {
        if (isSet(m_widget, Property::Checked)) {
            m_brushes.foreground = m_brushes.border =
                themeBrush(BrushName::ForegroundBrush, m_enabled);
        } else {
            // The text of a step that is not the current one is as faint as its border.
            m_brushes.foreground =
                brush(ComposedWidget::Button, m_kind, m_state, BrushField::Border);
        }
    }
    if (has(QStyle::State_MouseOver) && !has(QStyle::State_Sunken)) {
        m_brushes.border = mainBrush();
        if (m_checkable) {
            m_brushes.foreground = m_brushes.border;
        }
    }
}

} // namespace

ButtonBrushes buttonBrushes(const QStyleOption *option, const QWidget *widget)
{
    return option ? ButtonBrushChooser(*option, widget).choose() : ButtonBrushes();
}

} // namespace TARN
