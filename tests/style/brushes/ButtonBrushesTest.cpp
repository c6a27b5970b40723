#include "style/brushes/BrushNames.h"

#include <style/BaseStyle.h>

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCommandLinkButton>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QToolButton>

#include <support/NamedWidget.h>
#include <support/Text.h>

namespace {

constexpr QStyle::State enabled = QStyle::State_Enabled;
constexpr QStyle::State active = QStyle::State_Enabled | QStyle::State_Active;
constexpr QStyle::State hovered = QStyle::State_Enabled | QStyle::State_MouseOver;
constexpr QStyle::State sunken = QStyle::State_Enabled | QStyle::State_Sunken;
constexpr QStyle::State on = QStyle::State_Enabled | QStyle::State_On;

QStyleOptionButton pushButton(QStyle::State state, QStyleOptionButton::ButtonFeatures features = {})
{
    QStyleOptionButton option;
    option.state = state;
    option.features = features;
    return option;
}

/// A style that places the mouse over a sub-control of its choice.
class HitStyle : public QProxyStyle
{
public:
    SubControl hit = SC_None;

    SubControl hitTestComplexControl(ComplexControl /*control*/,
                                     const QStyleOptionComplex * /*option*/,
                                     const QPoint & /*position*/,
                                     const QWidget * /*widget*/) const override
    {
        return hit;
    }
};

} // namespace

/// The brushes that are chosen for buttons and button-like inputs.
class ButtonBrushesTest : public QObject, private BrushNames
{
    Q_OBJECT

private Q_SLOTS:
    void stateWords_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<bool>("isDefault");
        QTest::addColumn<QByteArray>("word");
        const auto row = [](const char *name, QStyle::State state, bool isDefault,
                            const char *word) {
            QTest::newRow(name) << int(state) << isDefault << QByteArray(word);
        };
        row("rest", enabled, false, "Unchecked");
        row("disabled", QStyle::State_None, false, "Unchecked");
        row("checked", on, false, "Checked");
        row("pressed", sunken, false, "UncheckedPressed");
        row("hovered", hovered, false, "UncheckedHover");
        row("pressed under the mouse", sunken | hovered, false, "UncheckedPressed");
        row("checked and hovered", on | hovered, false, "CheckedHover");
        row("checked and pressed", on | sunken, false, "CheckedPressed");
        row("hovered, not enabled", QStyle::State_MouseOver, false, "Unchecked");
        row("pressed, not enabled", QStyle::State_Sunken, false, "UncheckedPressed");
        row("default", active, true, "Default");
        row("default and hovered", active | hovered, true, "DefaultHover");
        row("default and pressed", active | sunken, true, "DefaultPressed");
        row("default and checked", active | on, true, "Default");
        row("default, inactive window", enabled, true, "Unchecked");
        row("default, not enabled", QStyle::State_Active, true, "Unchecked");
    }

    void stateWords()
    {
        QFETCH(int, state);
        QFETCH(bool, isDefault);
        QFETCH(QByteArray, word);
        const auto option =
            pushButton(QStyle::State(state),
                       isDefault ? QStyleOptionButton::DefaultButton : QStyleOptionButton::None);
        QCOMPARE(all(option, nullptr), named(("Button" + word).constData()));
        const QPushButton button;
        QCOMPARE(all(option, &button), named(("Button" + word).constData()));
    }

    void blinkingDecidesTheCheckWord_data()
    {
        QTest::addColumn<bool>("checked");
        QTest::addColumn<QByteArray>("word");
        QTest::newRow("unchecked") << false << QByteArray("UncheckedHover");
        QTest::newRow("checked") << true << QByteArray("CheckedHover");
    }

    void blinkingDecidesTheCheckWord()
    {
        QFETCH(bool, checked);
        QFETCH(QByteArray, word);
        QPushButton button;
        button.setProperty("blinking", true);
        button.setProperty("blink_checked", checked);
        const auto option = pushButton(on | active | hovered, QStyleOptionButton::DefaultButton);
        QCOMPARE(all(option, &button), named(("Button" + word).constData()));
        button.setProperty("blinking", false);
        QCOMPARE(all(option, &button), named("ButtonDefaultHover"));
    }

    void calendarNavigationLooksHovered()
    {
        QToolButton button;
        button.setObjectName(text("qt_calendar_prevmonth"));
        QCOMPARE(all(plain(on), &button), named("ButtonUncheckedHover"));
        QCOMPARE(all(plain(QStyle::State_None), &button), named("ButtonUncheckedHover"));
        QCOMPARE(all(plain(sunken), &button), named("ButtonUncheckedPressed"));
    }

    void pressedMenuArrowLeavesTheFaceHovered_data()
    {
        QTest::addColumn<int>("hit");
        QTest::addColumn<int>("state");
        QTest::addColumn<bool>("hasMenuArrow");
        QTest::addColumn<QByteArray>("word");
        const auto row = [](const char *name, QStyle::SubControl hit, QStyle::State state,
                            bool arrow, const char *word) {
            QTest::newRow(name) << int(hit) << int(state) << arrow << QByteArray(word);
        };
        row("on the arrow", QStyle::SC_ToolButtonMenu, sunken, true, "UncheckedHover");
        row("on the face", QStyle::SC_ToolButton, sunken, true, "UncheckedPressed");
        row("checked", QStyle::SC_ToolButtonMenu, sunken | on, true, "CheckedPressed");
        row("not pressed", QStyle::SC_ToolButtonMenu, on, true, "Checked");
        row("no arrow", QStyle::SC_ToolButtonMenu, sunken, false, "UncheckedPressed");
    }

    void pressedMenuArrowLeavesTheFaceHovered()
    {
        QFETCH(int, hit);
        QFETCH(int, state);
        QFETCH(bool, hasMenuArrow);
        QFETCH(QByteArray, word);
        auto *style = new HitStyle;
        style->hit = QStyle::SubControl(hit);
        QApplication::setStyle(style);
        const QToolButton button;
        QStyleOptionToolButton option;
        option.state = QStyle::State(state);
        option.subControls = hasMenuArrow ? QStyle::SC_ToolButton | QStyle::SC_ToolButtonMenu
                                          : QStyle::SC_ToolButton;
        QCOMPARE(all(option, &button), named(("Button" + word).constData()));
        QCOMPARE(background(option, nullptr),
                 text("Button") + (state & QStyle::State_On ? text("Checked") : text("Unchecked")) +
                     (state & QStyle::State_Sunken ? text("Pressed") : QString()) +
                     text("BackgroundBrush"));
    }

    void toggleWord()
    {
        QPushButton button;
        button.setCheckable(true);
        button.setProperty("ButtonType", text("Primary"));
        QCOMPARE(all(plain(hovered), &button), named("ToggleButtonPrimaryUncheckedHover"));
        QWidget widget;
        widget.setProperty("checkable", true);
        QCOMPARE(all(plain(on), &widget), named("ToggleButtonChecked"));
    }

    void kindWords()
    {
        QPushButton button;
        button.setProperty("ButtonType", text("Primary"));
        QCOMPARE(all(plain(enabled), &button), named("ButtonPrimaryUnchecked"));
        button.setProperty("Order", text("Borea"));
        QCOMPARE(all(plain(enabled), &button), named("ButtonBoreaUnchecked"));
        button.setProperty("Status", text("Primary"));
        QCOMPARE(all(plain(enabled), &button), named("ButtonPrimaryUnchecked"));
        button.setProperty("highlighted", true);
        QCOMPARE(all(plain(enabled), &button), named("ButtonHighlightedUnchecked"));
        button.setProperty("highlighted", false);
        button.setProperty("Status", QString());
        QCOMPARE(all(plain(enabled), &button), named("ButtonBoreaUnchecked"));
    }

    void disabledWidgetsAskForDisabledBrushes()
    {
        QPushButton button;
        button.setEnabled(false);
        QCOMPARE(background(plain(enabled), &button),
                 text("ButtonUncheckedBackgroundBrushDisabled"));
        QCOMPARE(foreground(plain(enabled), &button),
                 text("ButtonUncheckedForegroundBrushDisabled"));
        // The widget decides, not the option.
        const QPushButton other;
        QCOMPARE(background(plain(QStyle::State_None), &other),
                 text("ButtonUncheckedBackgroundBrush"));
    }

    void unknownNamesGiveNoBrush()
    {
        QPushButton button;
        button.setProperty("ButtonType", text("NoSuchKind"));
        QCOMPARE(all(plain(enabled), &button),
                 QStringList({text("none"), text("none"), text("none")}));
    }

    void flatButtons()
    {
        QPushButton button;
        const auto flat = QStyleOptionButton::Flat;
        QCOMPARE(all(pushButton(enabled, flat), &button),
                 QStringList({text("ButtonUncheckedBackgroundBrush"),
                              text("ButtonUncheckedBackgroundBrush"),
                              text("ButtonUncheckedForegroundBrush")}));
        QCOMPARE(foreground(pushButton(sunken, flat), &button),
                 text("ButtonUncheckedPressedForegroundBrush"));
        // A widget without buttons' options is not flat.
        QCOMPARE(border(plain(enabled), &button), text("ButtonUncheckedBorderBrush"));

        const QString prominent = text("ButtonHighlightedUncheckedHoverForegroundBrush");
        button.setProperty("ButtonType", text("Borea"));
        QCOMPARE(foreground(pushButton(sunken, flat), &button), prominent);
        QCOMPARE(foreground(pushButton(hovered, flat), &button),
                 text("ButtonBoreaUncheckedHoverForegroundBrush"));
        button.setProperty("ButtonType", text("borea"));
        QCOMPARE(foreground(pushButton(sunken, flat), &button), text("none"));
        // The kind "Highlighted" alone does not make a button highlighted.
        button.setProperty("ButtonType", text("Highlighted"));
        QCOMPARE(foreground(pushButton(sunken, flat), &button),
                 text("ButtonHighlightedUncheckedPressedForegroundBrush"));
        button.setProperty("highlighted", true);
        QCOMPARE(foreground(pushButton(sunken, flat), &button), prominent);
        QCOMPARE(foreground(pushButton(sunken), &button),
                 text("ButtonHighlightedUncheckedPressedForegroundBrush"));
        button.setEnabled(false);
        QCOMPARE(foreground(pushButton(sunken, flat), &button), prominent + text("Disabled"));
    }

    void outlineButtons()
    {
        QPushButton button;
        button.setProperty("outline", true);
        button.setProperty("ButtonType", text("Primary"));
        const QString face = text("ButtonPrimaryUncheckedBackgroundBrush");
        QCOMPARE(all(plain(enabled), &button), QStringList({face, face, text("none")}));
        QCOMPARE(all(plain(on | hovered), &button),
                 QStringList({text("ButtonPrimaryCheckedHoverBackgroundBrush"),
                              text("ButtonPrimaryUncheckedHoverBackgroundBrush"),
                              text("ButtonPrimaryCheckedHoverForegroundBrush")}));
        QCOMPARE(all(plain(on | hovered | sunken), &button),
                 QStringList({text("ButtonPrimaryCheckedPressedBackgroundBrush"),
                              text("ButtonPrimaryCheckedPressedBackgroundBrush"),
                              text("ButtonPrimaryCheckedPressedForegroundBrush")}));
        QCOMPARE(foreground(plain(hovered), &button),
                 text("ButtonPrimaryUncheckedHoverForegroundBrush"));
        QCOMPARE(foreground(plain(QStyle::State_MouseOver), &button), text("none"));
        QCOMPARE(foreground(plain(sunken), &button),
                 text("ButtonPrimaryUncheckedPressedForegroundBrush"));
        QCOMPARE(foreground(plain(on), &button), text("ButtonPrimaryCheckedForegroundBrush"));
        button.setProperty("outline", false);
        QCOMPARE(all(plain(enabled), &button), named("ButtonPrimaryUnchecked"));
        button.setProperty("outline", true);
        button.setCheckable(true);
        QCOMPARE(border(plain(on | hovered), &button),
                 text("ButtonPrimaryUncheckedHoverBackgroundBrush"));
        button.setEnabled(false);
        QCOMPARE(border(plain(on | hovered), &button),
                 text("ButtonPrimaryUncheckedHoverBackgroundBrushDisabled"));
    }

    void commandLinks()
    {
        QCommandLinkButton link;
        const auto isDefault = QStyleOptionButton::DefaultButton;
        QCOMPARE(foreground(pushButton(active, isDefault), &link), text("none"));
        QCOMPARE(background(pushButton(active, isDefault), &link),
                 text("ButtonDefaultBackgroundBrush"));
        QCOMPARE(foreground(pushButton(active), &link), text("ButtonUncheckedForegroundBrush"));
        QCOMPARE(foreground(pushButton(active | hovered, isDefault), &link),
                 text("ButtonDefaultHoverForegroundBrush"));
        QCOMPARE(foreground(pushButton(active | on, isDefault), &link),
                 text("ButtonDefaultForegroundBrush"));
        QCOMPARE(foreground(pushButton(active | sunken, isDefault), &link),
                 text("ButtonDefaultPressedForegroundBrush"));
        QCOMPARE(foreground(pushButton(QStyle::State_None, isDefault), &link),
                 text("ButtonUncheckedForegroundBrush"));
        const QPushButton button;
        QCOMPARE(foreground(pushButton(active, isDefault), &button),
                 text("ButtonDefaultForegroundBrush"));
    }

    void tabBarButtons()
    {
        QTabBar bar;
        const QToolButton button(&bar);
        QCOMPARE(border(plain(enabled), &button), text("CardBorderBrush"));
        QCOMPARE(border(plain(QStyle::State_None), &button), text("CardBorderBrushDisabled"));
        QCOMPARE(background(plain(enabled), &button), text("ButtonUncheckedBackgroundBrush"));
    }

    void lookalikes()
    {
        const Named<QPushButton> link("QCommandLinkButton");
        QCOMPARE(foreground(pushButton(active, QStyleOptionButton::DefaultButton), &link),
                 text("none"));
        NamedWidget bar("QTabBar");
        const QToolButton button(&bar);
        QCOMPARE(border(plain(enabled), &button), text("CardBorderBrush"));
    }

    void workflowButtons()
    {
        QWidget group;
        group.setProperty("ButtonGroupWidget_Workflow", true);
        QPushButton button(&group);
        QCOMPARE(all(plain(enabled), &button), named("ButtonUnchecked"));
        QCOMPARE(border(plain(hovered), &button), text("MainBrush"));
        QCOMPARE(foreground(plain(hovered), &button), text("ButtonUncheckedHoverForegroundBrush"));
        QCOMPARE(border(plain(hovered | sunken), &button),
                 text("ButtonUncheckedPressedBorderBrush"));
        // The hover of a workflow needs the mouse alone.
        QCOMPARE(border(plain(QStyle::State_MouseOver), &button), text("MainBrush"));

        button.setCheckable(true);
        QCOMPARE(foreground(plain(hovered), &button), text("MainBrush"));
    }

    void exclusiveWorkflowButtons()
    {
        QWidget group;
        group.setProperty("ButtonGroupWidget_Workflow", true);
        group.setProperty("ButtonGroupWidget_Exclusive", true);
        QPushButton button(&group);
        button.setProperty("ButtonType", text("Primary"));
        button.setCheckable(true);
        QCOMPARE(all(plain(enabled), &button),
                 QStringList({text("ToggleButtonPrimaryUncheckedBackgroundBrush"),
                              text("ToggleButtonPrimaryUncheckedBorderBrush"),
                              text("ButtonPrimaryUncheckedBorderBrush")}));
        button.setChecked(true);
        QCOMPARE(all(plain(on), &button),
                 QStringList({text("ToggleButtonPrimaryCheckedBackgroundBrush"),
                              text("ForegroundBrush"), text("ForegroundBrush")}));
        QCOMPARE(all(plain(on | hovered), &button),
                 QStringList({text("ToggleButtonPrimaryCheckedHoverBackgroundBrush"),
                              text("MainBrush"), text("MainBrush")}));
        group.setProperty("ButtonGroupWidget_Workflow", false);
        QCOMPARE(all(plain(on), &button), named("ToggleButtonPrimaryChecked"));
    }
};

QTEST_MAIN(ButtonBrushesTest)
#include "ButtonBrushesTest.moc"
