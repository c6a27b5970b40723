#include "style/BaseStyle.h"
#include "style/Properties.h"
#include "style/catalogue/Names.h"
#include "style/catalogue/Words.h"

#include <QtGui/QCursor>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDateTimeEdit>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QTimeEdit>

#include <algorithm>

namespace TARN {

namespace {

/// Tells whether the list of \a comboBox is open. QComboBox::view() would create the list.
bool isPopupVisible(const QComboBox &comboBox)
{
    const QObjectList &children = comboBox.children();
    return std::any_of(children.cbegin(), children.cend(), [](const QObject *child) {
        return isA(child, "QComboBoxPrivateContainer") &&
               static_cast<const QWidget *>(child)->isVisible();
    });
}

/// Tells whether the editor of an editable combo box has the focus.
bool isEditorFocused(const QComboBox &comboBox)
{
    const auto *editor = comboBox.findChild<QLineEdit *>();
    return editor && editor->hasFocus();
}

QString uncheckedHover()
{
    return Words::unchecked + Words::hover;
}

/// Chooses the brushes of one button, or of the button-like part of an input: first by name from
/// what the button is and its state, then by the exceptions that some kinds of buttons make.
class ButtonBrushChooser
{
public:
    ButtonBrushChooser(const QStyleOption &option, const QWidget *widget);

    BaseStyle::ButtonBrushes choose();

private:
    bool has(QStyle::StateFlag flag) const { return m_option.state.testFlag(flag); }
    bool hovered() const { return has(QStyle::State_MouseOver) && has(QStyle::State_Enabled); }
    bool hasFeature(QStyleOptionButton::ButtonFeature feature) const;

    QString toggleWord() const;
    QString kindWord() const;
    QString stateWord() const;
    QLatin1String checkWord() const;
    bool menuArrowPressed() const;

    QBrush brush(const QString &name) const { return BaseStyle::getBrush(name, m_enabled); }
    QBrush buttonBrush(QLatin1String field) const;
    QBrush inputBrush(QLatin1String field) const;
    QBrush mainBrush() const { return themeBrush(BrushName::MainBrush, m_enabled); }
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
    QString m_toggle;
    QString m_kind;
    QString m_state;
    BaseStyle::ButtonBrushes m_brushes;
};

ButtonBrushChooser::ButtonBrushChooser(const QStyleOption &option, const QWidget *widget)
    : m_option(option)
    , m_pushButton(qstyleoption_cast<const QStyleOptionButton *>(&option))
    , m_widget(widget)
    , m_parent(widget ? widget->parent() : nullptr)
    , m_enabled(!widget || widget->isEnabled())
    , m_toggle(toggleWord())
    , m_kind(kindWord())
    , m_state(stateWord())
{
}

BaseStyle::ButtonBrushes ButtonBrushChooser::choose()
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

QString ButtonBrushChooser::toggleWord() const
{
    return isSet(m_widget, "checkable") ? QString(Words::toggle) : QString();
}

QString ButtonBrushChooser::kindWord() const
{
    if (!m_widget) {
        return {};
    }
    if (isSet(m_widget, "highlighted")) {
        return Words::highlighted;
    }
    for (const char *property : {"Status", "Order", "ButtonType"}) {
        QString kind = m_widget->property(property).toString();
        if (!kind.isEmpty()) {
            return kind;
        }
    }
    return {};
}

QString ButtonBrushChooser::stateWord() const
{
    const bool calendarButton =
        m_widget && m_widget->objectName().contains(QLatin1String("qt_calendar_"));
    if ((calendarButton && !has(QStyle::State_Sunken)) || menuArrowPressed()) {
        return uncheckedHover();
    }
    if (has(QStyle::State_Sunken)) {
        return checkWord() + Words::pressed;
    }
    return hovered() ? checkWord() + Words::hover : checkWord();
}

QLatin1String ButtonBrushChooser::checkWord() const
{
    if (isSet(m_widget, "blinking")) {
        return isSet(m_widget, "blink_checked") ? Words::checked : Words::unchecked;
    }
    if (hasFeature(QStyleOptionButton::DefaultButton) && has(QStyle::State_Enabled) &&
        has(QStyle::State_Active)) {
        return Words::isDefault;
    }
    return has(QStyle::State_On) ? Words::checked : Words::unchecked;
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

QBrush ButtonBrushChooser::buttonBrush(QLatin1String field) const
{
    return brush(Words::buttonBrush(m_toggle, m_kind, m_state, field));
}

QBrush ButtonBrushChooser::inputBrush(QLatin1String field) const
{
    return brush(Words::inputBrush(m_kind, m_state, field));
}

const QBrush &ButtonBrushChooser::cardBorderBrush() const
{
    return BaseStyle::getBorderBrush(has(QStyle::State_Enabled));
}

void ButtonBrushChooser::chooseByName()
{
    m_brushes.background = buttonBrush(Words::background);
    m_brushes.border = buttonBrush(Words::border);
    m_brushes.foreground = buttonBrush(Words::foreground);
}

void ButtonBrushChooser::chooseForFlatButton()
{
    if (!hasFeature(QStyleOptionButton::Flat)) {
        return;
    }
    m_brushes.border = m_brushes.background;
    const bool prominent = isSet(m_widget, "highlighted") || m_kind == Words::borea;
    if (prominent && has(QStyle::State_Sunken)) {
        m_brushes.foreground = brush(
            Words::buttonBrush(QString(), Words::highlighted, uncheckedHover(), Words::foreground));
    }
}

void ButtonBrushChooser::chooseForOutlineButton()
{
    if (!isSet(m_widget, "outline")) {
        return;
    }
    if (hovered() && has(QStyle::State_On) && !has(QStyle::State_Sunken)) {
        m_brushes.border =
            brush(Words::buttonBrush(QString(), m_kind, uncheckedHover(), Words::background));
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
    } else if (isA(m_widget, "QAbstractSpinBox")) {
        chooseForSpinBox();
    } else if (const auto *comboBox = qobject_cast<const QComboBox *>(m_widget)) {
        chooseForComboBox(*comboBox);
    }
}

void ButtonBrushChooser::chooseForCalendarEdit(const QDateTimeEdit &edit)
{
    m_brushes.background = inputBrush(Words::background);
    if (!edit.hasFrame()) {
        m_brushes.border = m_brushes.background;
    } else {
        m_brushes.border = edit.hasFocus() ? mainBrush() : inputBrush(Words::border);
    }
}

void ButtonBrushChooser::chooseForSpinBox()
{
    // Spin boxes show no hover shade: only their buttons do.
    m_brushes.background =
        hovered() ? brush(Words::inputBrush(QString(), Words::unchecked, Words::background))
                  : inputBrush(Words::background);
    m_brushes.border = m_brushes.background;
}

void ButtonBrushChooser::chooseForComboBox(const QComboBox &comboBox)
{
    m_brushes.background = inputBrush(Words::background);
    m_brushes.border = inputBrush(Words::border);
    m_brushes.foreground = inputBrush(Words::foreground);
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
    if (!isA(m_widget, "QCommandLinkButton") || !hasFeature(QStyleOptionButton::DefaultButton)) {
        return;
    }
    if (has(QStyle::State_Enabled) && !has(QStyle::State_On) && !has(QStyle::State_MouseOver) &&
        !has(QStyle::State_Sunken)) {
        m_brushes.foreground = Qt::NoBrush;
    }
}

void ButtonBrushChooser::chooseForTabBarButton()
{
    if (isA(m_parent, "QTabBar")) {
        m_brushes.border = cardBorderBrush();
    }
}

void ButtonBrushChooser::chooseForWorkflowButton()
{
    if (!isSet(m_parent, "ButtonGroupWidget_Workflow")) {
        return;
    }
    if (isSet(m_parent, "ButtonGroupWidget_Exclusive")) {
        if (isSet(m_widget, "checked")) {
            m_brushes.foreground = m_brushes.border =
                themeBrush(BrushName::ForegroundBrush, m_enabled);
        } else {
            // The text of a step that is not the current one is as faint as its border.
            m_brushes.foreground =
                brush(Words::buttonBrush(QString(), m_kind, m_state, Words::border));
        }
    }
    if (has(QStyle::State_MouseOver) && !has(QStyle::State_Sunken)) {
        m_brushes.border = mainBrush();
        if (!m_toggle.isEmpty()) {
            m_brushes.foreground = m_brushes.border;
        }
    }
}

} // namespace

BaseStyle::ButtonBrushes BaseStyle::buttonBrushes(const QStyleOption *opt, const QWidget *widget)
{
    return opt ? ButtonBrushChooser(*opt, widget).choose() : ButtonBrushes();
}

} // namespace TARN
