#include <QtTest/QtTest>
#include <QtWidgets/QRadioButton>

#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/themes/PaintTheme.h>

namespace {

// Large enough for an outline that is nearly straight within a pixel.
constexpr QSize size(60, 60);
const QPoint middle(30, 30);
const QPoint onTop(30, 0);
const QPoint belowTop(30, 1);
constexpr QColor ground(1, 2, 3);

QStyleOptionButton indicatorOption(QStyle::State state)
{
    QStyleOptionButton option;
    option.rect = QRect(QPoint(), size);
    option.state = state;
    return option;
}

} // namespace

Q_DECLARE_METATYPE(QStyle::State)

/// Radio buttons.
class RadioButtonPaintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void indicator_data();
    void indicator();
    void indicatorIsACircle();
    void pressedOneHasASecondOutline();
    void errorIsOutlined();
    void control();
    void focusIsDrawn();
    void needsItsOption();
};

void RadioButtonPaintTest::indicator_data()
{
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<QString>("border");
    QTest::addColumn<QString>("center");
    const QStyle::State enabled = QStyle::State_Enabled;
    const QStyle::State on = enabled | QStyle::State_On;
    const QStyle::State keyboard = QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
    const QString border = text("ControlBorderBrush");
    const QString mainBorder = text("MainBrush");
    const QString background = text("ControlBackgroundBrush");
    QTest::newRow("off") << enabled << border << background;
    QTest::newRow("off, hovered") << (enabled | QStyle::State_MouseOver) << mainBorder
                                  << background;
    QTest::newRow("off, focus") << (enabled | keyboard) << mainBorder << background;
    QTest::newRow("off, focus by mouse")
        << (enabled | QStyle::State_HasFocus) << border << background;
    QTest::newRow("on") << on << border << text("ForegroundBrush");
    QTest::newRow("on, hovered") << (on | QStyle::State_MouseOver) << mainBorder
                                 << text("ForegroundMouseOverBrush");
    QTest::newRow("on, pressed") << (on | QStyle::State_MouseOver | QStyle::State_Sunken)
                                 << mainBorder << text("ForegroundMouseOverBrush");
    QTest::newRow("off, pressed") << (enabled | QStyle::State_MouseOver | QStyle::State_Sunken)
                                  << mainBorder << background;
    QTest::newRow("on, pressed by keyboard")
        << (on | keyboard | QStyle::State_Sunken) << mainBorder << text("ForegroundBrush");
    QTest::newRow("on, pressed by code")
        << (on | QStyle::State_Sunken) << border << text("ForegroundBrush");
    QTest::newRow("disabled") << QStyle::State(QStyle::State_MouseOver)
                              << text("ControlBorderBrushDisabled")
                              << text("ControlBackgroundBrushDisabled");
    QTest::newRow("disabled, on") << (QStyle::State_On | QStyle::State_MouseOver)
                                  << text("ControlBorderBrushDisabled")
                                  << text("ForegroundBrushDisabled");
}

void RadioButtonPaintTest::indicator()
{
    QFETCH(QStyle::State, state);
    QFETCH(QString, border);
    QFETCH(QString, center);
    const PaintTheme theme;
    CallRecorder recorder;
    const QRadioButton button;
    for (const QWidget *widget :
         {static_cast<const QWidget *>(&button), static_cast<const QWidget *>(nullptr)}) {
        const QImage picture =
            recorder.picture(QStyle::PE_IndicatorRadioButton, indicatorOption(state), widget, size);
        QCOMPARE(theme.nameNear(picture, onTop), border);
        QCOMPARE(theme.nameNear(picture, middle), center);
        // Between outline and mark the ground is seen.
        QVERIFY(theme.nameNear(picture, {30, 5}).startsWith(text("ControlB")));
    }
}

void RadioButtonPaintTest::indicatorIsACircle()
{
    const PaintTheme theme;
    CallRecorder recorder;
    const QImage picture = recorder.picture(
        QStyle::PE_IndicatorRadioButton, indicatorOption(QStyle::State_Enabled | QStyle::State_On),
        nullptr, size, ground);
    for (const QPoint &corner : {QPoint(0, 0), QPoint(7, 7), QPoint(59, 0), QPoint(59, 59)}) {
        QCOMPARE(picture.pixelColor(corner), ground);
    }
    // The outline is crisp where it touches the edges of the rectangle.
    QCOMPARE(theme.nameNear(picture, onTop), text("ControlBorderBrush"));
    QCOMPARE(theme.nameNear(picture, belowTop), text("ControlBackgroundBrush"));
}

void RadioButtonPaintTest::pressedOneHasASecondOutline()
{
    const PaintTheme theme;
    CallRecorder recorder;
    const auto picture = [&](QStyle::State state) {
        return recorder.picture(QStyle::PE_IndicatorRadioButton, indicatorOption(state), nullptr,
                                size);
    };
    const QImage atRest = picture(QStyle::State_Enabled);
    const QImage pressed = picture(QStyle::State_Enabled | QStyle::State_Sunken);
    QCOMPARE(theme.nameNear(atRest, belowTop), text("ControlBackgroundBrush"));
    QCOMPARE(theme.nameNear(pressed, belowTop), text("ControlBorderBrush"));
}

void RadioButtonPaintTest::errorIsOutlined()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QRadioButton button;
    button.setProperty("drawErrorIndicator", true);
    const QImage picture = recorder.picture(
        QStyle::PE_IndicatorRadioButton,
        indicatorOption(QStyle::State_Enabled | QStyle::State_MouseOver), &button, size);
    QCOMPARE(theme.nameNear(picture, onTop), text("StatusDangerColor"));
}

void RadioButtonPaintTest::control()
{
    const PaintTheme theme;
    CallRecorder recorder;
    const QRadioButton button;
    QStyleOptionButton option = indicatorOption(QStyle::State_Enabled);
    option.rect = QRect(0, 0, 100, 20);
    option.text = text("Linear");
    recorder.picture(QStyle::CE_RadioButton, option, &button, {100, 20});
    QCOMPARE(recorder.elements(), QStringList({text("PE_IndicatorRadioButton"),
                                               text("CE_RadioButtonLabel"), text("drawItemText")}));
    QCOMPARE(recorder.call("PE_IndicatorRadioButton").rect,
             recorder.subElementRect(QStyle::SE_RadioButtonIndicator, &option, &button));
    QCOMPARE(recorder.call("CE_RadioButtonLabel").rect,
             recorder.subElementRect(QStyle::SE_RadioButtonContents, &option, &button));
    QCOMPARE(recorder.call("drawItemText").text, option.text);
}

void RadioButtonPaintTest::focusIsDrawn()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionButton option = indicatorOption(QStyle::State_Enabled | QStyle::State_HasFocus);
    option.rect = QRect(0, 0, 100, 20);
    recorder.picture(QStyle::CE_RadioButton, option, nullptr, {100, 20});
    QVERIFY(recorder.elements().contains(text("PE_FrameFocusRect")));
    QCOMPARE(recorder.call("PE_FrameFocusRect").rect,
             recorder.subElementRect(QStyle::SE_RadioButtonFocusRect, &option, nullptr));
}

void RadioButtonPaintTest::needsItsOption()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOption option;
    option.rect = QRect(0, 0, 100, 20);
    option.state = QStyle::State_Enabled;
    recorder.picture(QStyle::CE_RadioButton, option, nullptr, {100, 20});
    QVERIFY(recorder.calls().empty());
    recorder.picture(QStyle::CE_RadioButtonLabel, option, nullptr, {100, 20});
    QVERIFY(recorder.calls().empty());
}

QTEST_MAIN(RadioButtonPaintTest)
#include "RadioButtonPaintTest.moc"
