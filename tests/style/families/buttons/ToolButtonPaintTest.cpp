#include <QtTest/QtTest>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QToolButton>

#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/painting/OddRectangles.h>
#include <support/painting/Pixels.h>
#include <support/themes/PaintTheme.h>

namespace {

constexpr QStyle::State enabled = QStyle::State_Enabled | QStyle::State_Active;
constexpr QStyle::State raised = enabled | QStyle::State_Raised;
constexpr QStyle::State autoRaise = enabled | QStyle::State_AutoRaise;
constexpr QStyle::State hovered = QStyle::State_MouseOver;

constexpr QSize pictureSize(120, 60);
constexpr QRect buttonRect(10, 10, 80, 30);

QStyleOptionToolButton toolButton(QStyle::State state)
{
    QStyleOptionToolButton option;
    option.rect = buttonRect;
    option.state = state;
    option.subControls = QStyle::SC_ToolButton;
    option.icon = squareIcon();
    option.iconSize = QSize(16, 16);
    option.toolButtonStyle = Qt::ToolButtonIconOnly;
    return option;
}

/// Returns a button with a part of its own that opens a menu.
QStyleOptionToolButton splitButton(QStyle::State state, QStyle::SubControls active = {})
{
    QStyleOptionToolButton option = toolButton(state);
    option.subControls |= QStyle::SC_ToolButtonMenu;
    option.activeSubControls = active;
    option.features = QStyleOptionToolButton::MenuButtonPopup | QStyleOptionToolButton::HasMenu;
    return option;
}

} // namespace

/// Tool buttons: their parts and what becomes of their states.
class ToolButtonPaintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void panel_data();
    void panel();
    void panelColors();
    void circularPanel();
    void focus();
    void splitParts();
    void splitPartsLieSideBySide_data();
    void splitPartsLieSideBySide();
    void pressedPart();
    void pressedMenuUnderTheMouse();
    void menuArrow_data();
    void menuArrow();
    void menuArrowOfOtherButtons_data();
    void menuArrowOfOtherButtons();
    void labelTakesTheForeground();
    void labelWithoutForeground();
    void labelKeepsTheCallersOption();
    void needTheirOption();
    void oddRectangles_data();
    void oddRectangles();

private:
    PaintTheme m_theme;
    CallRecorder m_recorder;

    QImage button(const QStyleOptionComplex &option, const QWidget *widget = nullptr)
    {
        return m_recorder.picture(QStyle::CC_ToolButton, option, widget, pictureSize);
    }
    QImage label(const QStyleOption &option, const QWidget *widget = nullptr)
    {
        return m_recorder.picture(QStyle::CE_ToolButtonLabel, option, widget, pictureSize);
    }
    QRect rectOf(const char *element) const { return m_recorder.call(element).rect; }
};

void ToolButtonPaintTest::panel_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<bool>("hasPanel");

    QTest::newRow("rest") << int(raised) << true;
    QTest::newRow("neither raised nor pressed") << int(enabled) << false;
    QTest::newRow("checked") << int(enabled | QStyle::State_On) << true;
    QTest::newRow("disabled") << int(QStyle::State_Raised) << true;
    QTest::newRow("auto-raised, rest") << int(autoRaise | QStyle::State_Raised) << false;
    QTest::newRow("auto-raised, hovered")
        << int(autoRaise | QStyle::State_Raised | hovered) << true;
    QTest::newRow("auto-raised, checked") << int(autoRaise | QStyle::State_On) << true;
    QTest::newRow("auto-raised, disabled under the mouse")
        << int(QStyle::State_AutoRaise | QStyle::State_Raised | hovered) << false;
}

void ToolButtonPaintTest::panel()
{
    QFETCH(int, state);
    QFETCH(bool, hasPanel);
    m_recorder.stopAt("CE_ToolButtonLabel");
    button(toolButton(QStyle::State(state)));

    QStringList expected{text("CE_ToolButtonLabel")};
    if (hasPanel) {
        expected =
            QStringList{text("PE_PanelButtonTool"), text("PE_PanelButtonCommand")} + expected;
        QCOMPARE(rectOf("PE_PanelButtonTool"), buttonRect);
    }
    QCOMPARE(m_recorder.elements(), expected);
    QCOMPARE(rectOf("CE_ToolButtonLabel"), buttonRect.adjusted(1, 1, -1, -1));
}

void ToolButtonPaintTest::panelColors()
{
    const QToolButton widget;
    const QImage picture = button(toolButton(raised | hovered), &widget);

    QCOMPARE(m_theme.nameAt(picture, {15, 15}), text("ButtonUncheckedHoverBackgroundBrush"));
    QCOMPARE(m_theme.nameAt(picture, {10, 25}), text("ButtonUncheckedHoverBorderBrush"));
}

void ToolButtonPaintTest::circularPanel()
{
    QToolButton widget;
    widget.setProperty("circular", true);
    const QImage picture = button(toolButton(raised), &widget);

    QCOMPARE(picture.pixelColor(10, 10), QColor(Qt::black));
    QCOMPARE(picture.pixelColor(13, 13), QColor(Qt::black));
    QCOMPARE(m_theme.nameAt(picture, {30, 15}), text("ButtonUncheckedBackgroundBrush"));
}

void ToolButtonPaintTest::focus()
{
    const QStyle::State byKeyboard = QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
    const QImage without = button(toolButton(autoRaise));
    QVERIFY(!m_recorder.elements().contains(text("PE_FrameFocusRect")));
    const QImage with = button(toolButton(autoRaise | byKeyboard));
    QVERIFY(with != without);
    QCOMPARE(rectOf("PE_FrameFocusRect"), buttonRect.adjusted(2, 2, -2, -2));

    // Of a split button, the face has it.
    button(splitButton(raised | byKeyboard));
    QCOMPARE(rectOf("PE_FrameFocusRect"), buttonRect.adjusted(2, 2, -14, -2));
}

void ToolButtonPaintTest::splitParts()
{
    m_recorder.stopAt("CE_ToolButtonLabel");
    button(splitButton(raised));

    QCOMPARE(m_recorder.elements(),
             QStringList({text("PE_PanelButtonTool"), text("PE_PanelButtonCommand"),
                          text("PE_IndicatorButtonDropDown"), text("PE_PanelButtonCommand"),
                          text("PE_IndicatorArrowDown"), text("CE_ToolButtonLabel")}));
    QCOMPARE(rectOf("PE_PanelButtonTool"), buttonRect.adjusted(0, 0, -12, 0));
    QCOMPARE(rectOf("PE_IndicatorButtonDropDown"), QRect(78, 10, 12, 30));
    QCOMPARE(rectOf("PE_IndicatorArrowDown"), QRect(78, 10, 12, 30));
    QCOMPARE(rectOf("CE_ToolButtonLabel"), buttonRect.adjusted(1, 1, -13, -1));

    // Auto-raised, only the arrow is left at rest.
    button(splitButton(autoRaise | QStyle::State_Raised));
    QCOMPARE(m_recorder.elements(),
             QStringList({text("PE_IndicatorArrowDown"), text("CE_ToolButtonLabel")}));
}

void ToolButtonPaintTest::splitPartsLieSideBySide_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<int>("sharedColumn");

    QTest::newRow("left to right") << Qt::LeftToRight << 77;
    QTest::newRow("right to left") << Qt::RightToLeft << 22;
}

void ToolButtonPaintTest::splitPartsLieSideBySide()
{
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(int, sharedColumn);
    const PaintTheme rounded(PaintTheme::Radii{6, 6, 6, 6});
    QStyleOptionToolButton option = splitButton(raised);
    option.direction = direction;
    m_recorder.stopAt("CE_ToolButtonLabel");
    m_recorder.stopAt("PE_IndicatorArrowDown");
    const QImage picture = button(option);

    // One line between the parts, up to the very edges, and round corners at the outer ends.
    const auto isPainted = [&](int x, int y) {
        return picture.pixelColor(x, y) != QColor(Qt::black);
    };
    QVERIFY(isPainted(sharedColumn, 10));
    QVERIFY(isPainted(sharedColumn, 39));
    QVERIFY(isPainted(sharedColumn + 1, 10));
    QVERIFY(isPainted(sharedColumn - 1, 10));
    QVERIFY(!isPainted(10, 10));
    QVERIFY(!isPainted(89, 39));
    QCOMPARE(rounded.nameAt(picture, {sharedColumn, 25}), text("ButtonUncheckedBorderBrush"));
    QCOMPARE(rounded.nameAt(picture, {sharedColumn - 1, 25}),
             text("ButtonUncheckedBackgroundBrush"));
    QCOMPARE(rounded.nameAt(picture, {sharedColumn + 1, 25}),
             text("ButtonUncheckedBackgroundBrush"));
}

void ToolButtonPaintTest::pressedPart()
{
    const auto isSunken = [this](const char *element) {
        return m_recorder.call(element).state.testFlag(QStyle::State_Sunken);
    };
    button(splitButton(raised | QStyle::State_Sunken, QStyle::SC_ToolButtonMenu));
    QVERIFY(!isSunken("PE_PanelButtonTool"));
    QVERIFY(!isSunken("CE_ToolButtonLabel"));
    QVERIFY(isSunken("PE_IndicatorButtonDropDown"));
    QVERIFY(isSunken("PE_IndicatorArrowDown"));

    button(splitButton(enabled | QStyle::State_Sunken, QStyle::SC_ToolButton));
    QVERIFY(isSunken("PE_PanelButtonTool"));
    QVERIFY(isSunken("CE_ToolButtonLabel"));
    QVERIFY(m_recorder.elements().contains(text("PE_IndicatorButtonDropDown")));
    QVERIFY(!isSunken("PE_IndicatorButtonDropDown"));
}

void ToolButtonPaintTest::pressedMenuUnderTheMouse()
{
    const QToolButton widget;
    const QStyleOptionToolButton option =
        splitButton(raised | hovered | QStyle::State_Sunken, QStyle::SC_ToolButtonMenu);
    const QImage picture = button(option, &widget);

    QCOMPARE(m_theme.nameAt(picture, {14, 14}), text("ButtonUncheckedHoverBackgroundBrush"));
    QCOMPARE(m_theme.nameAt(picture, {84, 14}), text("ButtonUncheckedPressedBackgroundBrush"));
}

void ToolButtonPaintTest::menuArrow_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QRect>("arrow");
    QTest::addColumn<QRect>("label");

    QTest::newRow("left to right")
        << Qt::LeftToRight << QRect(75, 11, 12, 28) << QRect(11, 11, 66, 28);
    QTest::newRow("right to left")
        << Qt::RightToLeft << QRect(13, 11, 12, 28) << QRect(23, 11, 66, 28);
}

void ToolButtonPaintTest::menuArrow()
{
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(QRect, arrow);
    QFETCH(QRect, label);
    QStyleOptionToolButton option = toolButton(raised);
    option.features = QStyleOptionToolButton::HasMenu | QStyleOptionToolButton::PopupDelay;
    option.direction = direction;
    button(option);

    QCOMPARE(rectOf("PE_IndicatorArrowDown"), arrow);
    QCOMPARE(rectOf("CE_ToolButtonLabel"), label);
}

void ToolButtonPaintTest::menuArrowOfOtherButtons_data()
{
    QTest::addColumn<int>("features");
    QTest::addColumn<bool>("noMenuArrow");

    QTest::newRow("without a menu") << int(QStyleOptionToolButton::None) << false;
    QTest::newRow("with an arrow instead of an icon")
        << int(QStyleOptionToolButton::HasMenu | QStyleOptionToolButton::Arrow) << false;
    QTest::newRow("no menu arrow wanted") << int(QStyleOptionToolButton::HasMenu) << true;
}

void ToolButtonPaintTest::menuArrowOfOtherButtons()
{
    QFETCH(int, features);
    QFETCH(bool, noMenuArrow);
    QToolButton widget;
    widget.setProperty("no menu arrow", noMenuArrow);
    QStyleOptionToolButton option = toolButton(raised);
    option.features = QStyleOptionToolButton::ToolButtonFeatures(features);
    m_recorder.stopAt("CE_ToolButtonLabel");
    button(option, &widget);

    QVERIFY(!m_recorder.elements().contains(text("PE_IndicatorArrowDown")));
    QCOMPARE(rectOf("CE_ToolButtonLabel"), buttonRect.adjusted(1, 1, -1, -1));
}

void ToolButtonPaintTest::labelTakesTheForeground()
{
    const QToolButton widget;
    QStyleOptionToolButton option = toolButton(raised | hovered);
    option.text = blocks(2);
    option.toolButtonStyle = Qt::ToolButtonTextBesideIcon;
    const QImage picture = button(option, &widget);

    const QString name = text("ButtonUncheckedHoverForegroundBrush");
    QVERIFY(m_theme.shows(picture.copy(rectOf("drawItemPixmap")), name));
    QVERIFY(m_theme.shows(picture.copy(rectOf("drawItemText")), name));
}

void ToolButtonPaintTest::labelWithoutForeground()
{
    QToolButton widget;
    widget.setProperty("outline", true);
    QStyleOptionToolButton option = toolButton(raised);
    option.text = blocks(2);
    option.toolButtonStyle = Qt::ToolButtonTextBesideIcon;
    const QImage picture = button(option, &widget);

    QVERIFY(m_theme.shows(picture.copy(rectOf("drawItemPixmap")), text("ForegroundColor")));
    QVERIFY(m_theme.shows(picture.copy(rectOf("drawItemText")), text("ForegroundColor")));
}

void ToolButtonPaintTest::labelKeepsTheCallersOption()
{
    QStyleOptionToolButton option = toolButton(raised);
    const QPalette palette = option.palette;
    const qint64 icon = option.icon.cacheKey();
    button(option);

    QCOMPARE(option.palette, palette);
    QCOMPARE(option.icon.cacheKey(), icon);
}

void ToolButtonPaintTest::needTheirOption()
{
    QStyleOptionComplex complex;
    complex.rect = buttonRect;
    complex.state = raised;
    const QImage asButton = button(complex);
    QVERIFY(m_recorder.elements().isEmpty());
    QCOMPARE(m_theme.namesIn(asButton), QStringList());

    const QImage asLabel = label(complex);
    QVERIFY(m_recorder.elements().isEmpty());
    QCOMPARE(m_theme.namesIn(asLabel), QStringList());
}

void ToolButtonPaintTest::oddRectangles_data()
{
    addOddRectangles();
    QTest::newRow("far away") << QRect(farAway, -farAway, 100, 30);
}

void ToolButtonPaintTest::oddRectangles()
{
    QFETCH(QRect, rect);
    for (const auto style : {Qt::ToolButtonIconOnly, Qt::ToolButtonTextBesideIcon,
                             Qt::ToolButtonTextUnderIcon, Qt::ToolButtonTextOnly}) {
        QStyleOptionToolButton option = splitButton(raised | QStyle::State_HasFocus);
        option.rect = rect;
        option.text = text("Text");
        option.toolButtonStyle = style;
        button(option);
        QVERIFY(m_recorder.elements().contains(text("CE_ToolButtonLabel")));
    }
}

QTEST_MAIN(ToolButtonPaintTest)
#include "ToolButtonPaintTest.moc"
