#include "style/families/buttons/ButtonSample.h"

#include <QtTest/QtTest>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyleOption>

#include <cmath>
#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/painting/OddRectangles.h>
#include <support/painting/Pixels.h>
#include <support/themes/PaintTheme.h>

using TARN::BaseStyle;

namespace {

constexpr QStyle::State enabled = QStyle::State_Enabled | QStyle::State_Active;
constexpr QStyle::State hovered = enabled | QStyle::State_MouseOver;

} // namespace

/// Push buttons: their labels, and how these come together with the bevels.
class ButtonPaintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bevelPreparesTheOption();
    void bevelWithoutForeground();
    void preparedOptionIsTheCallersOwn();
    void wholeButton();
    void focus_data();
    void focus();
    void focusOfACircularButton();
    void focusInTheColorOfTheText();
    void needTheirOption_data();
    void needTheirOption();
    void oddRectangles_data();
    void oddRectangles();

private:
    PaintTheme m_theme;
    CallRecorder m_recorder;

    QImage control(QStyle::ControlElement element, const QStyleOption &option,
                   const QWidget *widget = nullptr)
    {
        return m_recorder.picture(element, option, widget, pictureSize);
    }
    QRect rectOf(const char *element) const { return m_recorder.call(element).rect; }
};

void ButtonPaintTest::bevelPreparesTheOption()
{
    const QPushButton button;
    const QBrush before(Qt::magenta);
    QStyleOptionButton option = iconOption(hovered);
    option.palette.setCurrentColorGroup(QPalette::Inactive);
    option.palette.setBrush(QPalette::All, QPalette::ButtonText, before);
    option.palette.setBrush(QPalette::All, QPalette::WindowText, before);
    control(QStyle::CE_PushButtonBevel, option, &button);

    const QColor expected = m_theme.brush(text("ButtonUncheckedHoverForegroundBrush"));
    for (const auto role : {QPalette::ButtonText, QPalette::WindowText}) {
        QCOMPARE(option.palette.color(QPalette::Inactive, role), expected);
        QCOMPARE(option.palette.brush(QPalette::Active, role), before);
        QCOMPARE(option.palette.brush(QPalette::Disabled, role), before);
    }
    QCOMPARE(option.palette.currentColorGroup(), QPalette::Inactive);
    QCOMPARE(option.icon.pixmap(16, 16).toImage().pixelColor(8, 8), expected);
}

void ButtonPaintTest::bevelWithoutForeground()
{
    QPushButton button;
    button.setProperty("outline", true);
    QStyleOptionButton option = iconOption(enabled);
    const QPalette palette = option.palette;
    const qint64 icon = option.icon.cacheKey();
    control(QStyle::CE_PushButtonBevel, option, &button);

    QCOMPARE(option.palette, palette);
    QCOMPARE(option.icon.cacheKey(), icon);
}

void ButtonPaintTest::preparedOptionIsTheCallersOwn()
{
    QStyleOptionButton option = buttonOption(enabled);
    const BaseStyle &style = m_recorder.style();

    QCOMPARE(style.commonCallButtonText<QStyleOptionButton>(&option, nullptr),
             static_cast<const QStyleOptionButton *>(&option));
    QCOMPARE(option.palette.color(QPalette::ButtonText),
             m_theme.brush(text("ButtonUncheckedForegroundBrush")));
}

void ButtonPaintTest::wholeButton()
{
    const QPushButton button;
    QStyleOptionButton option = iconOption(enabled, QStyleOptionButton::HasMenu);
    option.text = text("Text");
    control(QStyle::CE_PushButton, option, &button);

    QCOMPARE(m_recorder.elements(),
             QStringList({text("CE_PushButtonBevel"), text("PE_PanelButtonCommand"),
                          text("PE_IndicatorArrowDown"), text("CE_PushButtonLabel"),
                          text("drawItemPixmap"), text("drawItemText")}));
    QCOMPARE(rectOf("CE_PushButtonBevel"), buttonRect);
    QCOMPARE(rectOf("PE_PanelButtonCommand"), buttonRect);
    QCOMPARE(rectOf("CE_PushButtonLabel"), buttonRect.adjusted(1, 1, -1, -1));
    // What the caller paints next matches the label.
    QCOMPARE(option.palette.color(QPalette::ButtonText),
             m_theme.brush(text("ButtonUncheckedForegroundBrush")));
}

void ButtonPaintTest::focus_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<bool>("isHanded");

    const QStyle::State byMouse = enabled | QStyle::State_HasFocus;
    QTest::newRow("none") << int(enabled) << false;
    QTest::newRow("by mouse") << int(byMouse) << true;
    QTest::newRow("by keyboard") << int(byMouse | QStyle::State_KeyboardFocusChange) << true;
}

void ButtonPaintTest::focus()
{
    QFETCH(int, state);
    QFETCH(bool, isHanded);
    const QPushButton button;
    const QStyleOptionButton option = buttonOption(QStyle::State(state));
    control(QStyle::CE_PushButton, option, &button);

    QCOMPARE(m_recorder.elements().contains(text("PE_FrameFocusRect")), isHanded);
    if (isHanded) {
        const PaintCall call = m_recorder.call("PE_FrameFocusRect");
        QCOMPARE(call.rect,
                 m_recorder.subElementRect(QStyle::SE_PushButtonFocusRect, &option, &button));
        QCOMPARE(int(call.state), state);
    }
}

void ButtonPaintTest::focusOfACircularButton()
{
    QPushButton button;
    button.setProperty("circular", true);
    QStyleOptionButton option = buttonOption(enabled | QStyle::State_HasFocus);
    option.rect = QRect(10, 5, 28, 28);
    control(QStyle::CE_PushButton, option, &button);

    // The corners of the line are inside of the circle.
    const QRect focus = rectOf("PE_FrameFocusRect");
    const QPointF middle = QRectF(option.rect).center();
    const QPointF corner = QPointF(focus.topLeft()) - middle;
    QVERIFY(std::hypot(corner.x(), corner.y()) < 14);
    QCOMPARE(QRectF(focus).center(), middle);
    QVERIFY(focus.width() >= 16);
}

void ButtonPaintTest::focusInTheColorOfTheText()
{
    const QPushButton button;
    QStyleOptionButton option =
        buttonOption(enabled | QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange,
                     QStyleOptionButton::DefaultButton);
    option.palette.setColor(QPalette::Text, Qt::magenta);

    QVERIFY(m_theme.shows(control(QStyle::CE_PushButton, option, &button),
                          text("ButtonDefaultForegroundBrush")));
}

void ButtonPaintTest::needTheirOption_data()
{
    QTest::addColumn<int>("element");

    QTest::newRow("button") << int(QStyle::CE_PushButton);
    QTest::newRow("bevel") << int(QStyle::CE_PushButtonBevel);
    QTest::newRow("label") << int(QStyle::CE_PushButtonLabel);
}

void ButtonPaintTest::needTheirOption()
{
    QFETCH(int, element);
    QStyleOption option;
    option.rect = buttonRect;
    option.state = enabled;
    const QImage picture = control(QStyle::ControlElement(element), option);

    QCOMPARE(m_recorder.elements(), QStringList());
    QCOMPARE(m_theme.namesIn(picture), QStringList());
}

void ButtonPaintTest::oddRectangles_data()
{
    addOddRectangles();
    QTest::newRow("far away") << QRect(farAway, -farAway, 100, 30);
}

void ButtonPaintTest::oddRectangles()
{
    QFETCH(QRect, rect);
    QPushButton button;
    for (const bool isCircular : {false, true}) {
        button.setProperty("circular", isCircular);
        QStyleOptionButton option =
            iconOption(enabled | QStyle::State_HasFocus, QStyleOptionButton::HasMenu);
        option.rect = rect;
        option.text = text("Text");
        control(QStyle::CE_PushButton, option, &button);
        QVERIFY(m_recorder.elements().contains(text("CE_PushButtonLabel")));
    }
}

QTEST_MAIN(ButtonPaintTest)
#include "ButtonPaintTest.moc"
