#include "CaseTables.h"
#include "Symbol.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QCommandLinkButton>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QToolButton>

namespace {

QPushButton *newPushButton()
{
    return new QPushButton(QStringLiteral("&Measure"));
}

QWidget *pushButton()
{
    return newPushButton();
}

QWidget *checkableButton()
{
    QPushButton *button = newPushButton();
    button->setCheckable(true);
    return button;
}

QWidget *defaultButton()
{
    QPushButton *button = newPushButton();
    button->setDefault(true);
    return button;
}

QWidget *flatButton()
{
    QPushButton *button = newPushButton();
    button->setFlat(true);
    return button;
}

QWidget *iconButton()
{
    QPushButton *button = newPushButton();
    button->setIcon(symbol());
    return button;
}

QWidget *menuButton()
{
    QPushButton *button = newPushButton();
    button->setMenu(new QMenu(button));
    return button;
}

QWidget *commandLink()
{
    return new QCommandLinkButton(QStringLiteral("Calibrate"), QStringLiteral("Takes a minute"));
}

QToolButton *newToolButton()
{
    auto *button = new QToolButton;
    button->setIcon(symbol());
    button->setCheckable(true);
    return button;
}

QWidget *toolButton()
{
    return newToolButton();
}

QWidget *raisingToolButton()
{
    QToolButton *button = newToolButton();
    button->setAutoRaise(true);
    return button;
}

QWidget *textToolButton()
{
    QToolButton *button = newToolButton();
    button->setText(QStringLiteral("Measure"));
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    return button;
}

QWidget *menuToolButton()
{
    QToolButton *button = newToolButton();
    button->setMenu(new QMenu(button));
    button->setPopupMode(QToolButton::MenuButtonPopup);
    return button;
}

QWidget *arrowToolButton()
{
    auto *button = new QToolButton;
    button->setArrowType(Qt::DownArrow);
    return button;
}

QWidget *checkBox()
{
    auto *box = new QCheckBox(QStringLiteral("&Average"));
    box->setTristate(true);
    return box;
}

QWidget *radioButton()
{
    return new QRadioButton(QStringLiteral("&Single"));
}

} // namespace

CaseTable buttonCases()
{
    using namespace States;
    return {
        {"QPushButton", pushButton, {rest, hover, pressed, focus, disabled}},
        {"QPushButton checkable", checkableButton, {rest, checked}},
        {"QPushButton default", defaultButton, {rest, hover}},
        {"QPushButton flat", flatButton, {rest, hover}},
        {"QPushButton with icon", iconButton, {rest, disabled}},
        {"QPushButton with menu", menuButton, {rest}},
        {"QCommandLinkButton", commandLink, {rest, hover}},
        {"QToolButton", toolButton, {rest, hover, pressed, checked, focus, disabled}},
        {"QToolButton raising", raisingToolButton, {rest, hover, pressed, checked, disabled}},
        {"QToolButton with text", textToolButton, {rest, hover, disabled}},
        {"QToolButton with menu", menuToolButton, {rest, hover, disabled}},
        {"QToolButton with arrow", arrowToolButton, {rest, hover, disabled}},
        {"QCheckBox", checkBox, {rest, hover, pressed, checked, partlyChecked, focus, disabled}},
        {"QRadioButton", radioButton, {rest, hover, pressed, checked, focus, disabled}},
    };
}
