#include <QtTest/QtTest>
#include <QtWidgets/QCheckBox>

#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/painting/OddRectangles.h>
#include <support/themes/PaintTheme.h>

namespace {

constexpr QSize size(14, 14);
constexpr QSize switchSize(28, 15);
const QPoint onTop(7, 0);
// The middles of the knob of a switch that is off and of one that is on.
const QPoint atStart(7, 7);
const QPoint atEnd(20, 7);

constexpr QStyle::StateFlag off = QStyle::State_Off;
constexpr QStyle::StateFlag on = QStyle::State_On;
constexpr QStyle::StateFlag partly = QStyle::State_NoChange;

QStyleOptionButton option(const QSize &optionSize, QStyle::State state)
{
    QStyleOptionButton button;
    button.rect = QRect(QPoint(), optionSize);
    button.state = state;
    return button;
}

} // namespace

Q_DECLARE_METATYPE(QStyle::State)

/// Check boxes and switches.
class CheckBoxPaintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void border_data();
    void border();
    void errorIsOutlined();
    void pressedOneHasASecondOutline();
    void mark_data();
    void mark();
    void partialMarkIsADash();
    void boxIsRound();
    void switchBrushes_data();
    void switchBrushes();
    void switchIsAPill();
    void switchIsMirrored();
    void switchOfNoChangeIsInTheMiddle();
    void switchIsOutlinedAsACheckBox();
    void indicatorNeedsItsOption();
    void anyRectangle_data();
    void anyRectangle();
};

void CheckBoxPaintTest::border_data()
{
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<QString>("border");
    const QStyle::State enabled = QStyle::State_Enabled;
    const QStyle::State hovered = enabled | QStyle::State_MouseOver;
    const QStyle::State focus = enabled | QStyle::State_HasFocus;
    const QStyle::State keyboard = focus | QStyle::State_KeyboardFocusChange;
    const QString resting = text("ControlBorderBrush");
    QTest::newRow("at rest") << enabled << resting;
    QTest::newRow("hovered") << hovered << text("MainBrush");
    QTest::newRow("focus by keyboard") << keyboard << text("MainBrush");
    QTest::newRow("focus by mouse") << focus << resting;
    QTest::newRow("pressed") << (hovered | QStyle::State_Sunken) << resting;
    QTest::newRow("pressed by keyboard") << (keyboard | QStyle::State_Sunken) << resting;
    QTest::newRow("disabled") << QStyle::State(QStyle::State_MouseOver)
                              << text("ControlBorderBrushDisabled");
}

void CheckBoxPaintTest::border()
{
    QFETCH(QStyle::State, state);
    QFETCH(QString, border);
    const PaintTheme theme;
    CallRecorder recorder;
    const QCheckBox checkBox;
    const bool isEnabled = state.testFlag(QStyle::State_Enabled);
    for (const QWidget *widget :
         {static_cast<const QWidget *>(&checkBox), static_cast<const QWidget *>(nullptr)}) {
        for (const auto check : {off, on, partly}) {
            const QImage picture = recorder.picture(QStyle::PE_IndicatorCheckBox,
                                                    option(size, state | check), widget, size);
            QCOMPARE(theme.nameAt(picture, onTop), border);
            QCOMPARE(theme.nameAt(picture, {13, 13}), border);
            QCOMPARE(theme.nameAt(picture, {2, 2}), isEnabled
                                                        ? text("ControlBackgroundBrush")
                                                        : text("ControlBackgroundBrushDisabled"));
        }
    }
}

void CheckBoxPaintTest::errorIsOutlined()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QCheckBox checkBox;
    checkBox.setProperty("drawErrorIndicator", true);
    const QImage picture = recorder.picture(
        QStyle::PE_IndicatorCheckBox, option(size, QStyle::State_Enabled | QStyle::State_MouseOver),
        &checkBox, size);
    QCOMPARE(theme.nameAt(picture, onTop), text("StatusDangerColor"));
}

void CheckBoxPaintTest::pressedOneHasASecondOutline()
{
    const PaintTheme theme;
    CallRecorder recorder;
    const auto nameBelowOutline = [&](QStyle::State state) {
        return theme.nameAt(
            recorder.picture(QStyle::PE_IndicatorCheckBox, option(size, state), nullptr, size),
            {7, 1});
    };
    QCOMPARE(nameBelowOutline(QStyle::State_Enabled), text("ControlBackgroundBrush"));
    QCOMPARE(nameBelowOutline(QStyle::State_Enabled | QStyle::State_Sunken),
             text("ControlBorderBrush"));
}

void CheckBoxPaintTest::mark_data()
{
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<QString>("mark");
    const QStyle::State enabled = QStyle::State_Enabled;
    const QStyle::State hovered = enabled | QStyle::State_MouseOver;
    for (const auto check : {on, partly}) {
        const char *name = check == on ? "checked" : "partially checked";
        QTest::addRow("%s", name) << (enabled | check) << text("ForegroundBrush");
        QTest::addRow("%s, hovered", name) << (hovered | check) << text("ForegroundMouseOverBrush");
        QTest::addRow("%s, disabled", name)
            << (QStyle::State_MouseOver | check) << text("ForegroundBrushDisabled");
    }
    QTest::newRow("unchecked") << (hovered | off) << QString();
}

void CheckBoxPaintTest::mark()
{
    QFETCH(QStyle::State, state);
    QFETCH(QString, mark);
    const PaintTheme theme;
    CallRecorder recorder;
    const QImage picture =
        recorder.picture(QStyle::PE_IndicatorCheckBox, option(size, state), nullptr, size);
    const QStringList marks = theme.namesIn(picture.copy(2, 2, 10, 10)).filter(text("Foreground"));
    QCOMPARE(marks, mark.isEmpty() ? QStringList() : QStringList{mark});
}

void CheckBoxPaintTest::partialMarkIsADash()
{
    const PaintTheme theme;
    CallRecorder recorder;
    const QImage picture = recorder.picture(
        QStyle::PE_IndicatorCheckBox, option(size, QStyle::State_Enabled | partly), nullptr, size);
    for (int y = 1; y < 13; ++y) {
        for (int x = 1; x < 13; ++x) {
            const bool isMarked = QRect(3, 5, 8, 4).contains(x, y);
            QCOMPARE(theme.nameAt(picture, {x, y}),
                     isMarked ? text("ForegroundBrush") : text("ControlBackgroundBrush"));
        }
    }
}

void CheckBoxPaintTest::boxIsRound()
{
    const PaintTheme theme(PaintTheme::Radii{1, 4, 1, 1});
    CallRecorder recorder;
    const QImage picture = recorder.picture(QStyle::PE_IndicatorCheckBox,
                                            option(size, QStyle::State_Enabled), nullptr, size);
    QCOMPARE(picture.pixelColor(0, 0), QColor(Qt::black));
    QCOMPARE(theme.nameAt(picture, onTop), text("ControlBorderBrush"));
}

void CheckBoxPaintTest::switchBrushes_data()
{
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<QPoint>("knobCenter");
    QTest::addColumn<QString>("knob");
    QTest::addColumn<QString>("track");
    const QStyle::State enabled = QStyle::State_Enabled;
    QTest::newRow("off") << (enabled | off) << atStart << text("SwitchEllipseBrush")
                         << text("ControlBackgroundBrush");
    QTest::newRow("on") << (enabled | on) << atEnd << text("SwitchForegroundCheckedEllipseBrush")
                        << text("MainBrush");
    QTest::newRow("off, disabled")
        << QStyle::State(off) << atStart << text("SwitchEllipseBrushDisabled")
        << text("ControlBackgroundBrushDisabled");
    QTest::newRow("on, disabled") << QStyle::State(on) << atEnd
                                  << text("SwitchForegroundCheckedEllipseBrushDisabled")
                                  << text("MainBrushDisabled");
}

void CheckBoxPaintTest::switchBrushes()
{
    QFETCH(QStyle::State, state);
    QFETCH(QPoint, knobCenter);
    QFETCH(QString, knob);
    QFETCH(QString, track);
    const PaintTheme theme;
    CallRecorder recorder;
    QCheckBox checkBox;
    checkBox.setProperty("switch", true);
    const QImage picture = recorder.picture(QStyle::PE_IndicatorCheckBox, option(switchSize, state),
                                            &checkBox, switchSize);
    QCOMPARE(theme.nameNear(picture, knobCenter), knob);
    QCOMPARE(theme.nameNear(picture, {knobCenter.x(), 3}), knob);
    QCOMPARE(theme.nameNear(picture, {knobCenter.x(), 11}), knob);
    QCOMPARE(theme.nameNear(picture, {knobCenter.x(), 2}), track);
    QCOMPARE(theme.nameNear(picture, {knobCenter.x(), 12}), track);
    QCOMPARE(theme.nameNear(picture, knobCenter == atStart ? atEnd : atStart), track);
    QVERIFY(!theme.shows(picture, text("ForegroundBrush")));
}

void CheckBoxPaintTest::switchIsAPill()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QCheckBox checkBox;
    checkBox.setProperty("switch", true);
    const QImage picture =
        recorder.picture(QStyle::PE_IndicatorCheckBox, option(switchSize, QStyle::State_Enabled),
                         &checkBox, switchSize);
    for (const QPoint &corner : {QPoint(0, 0), QPoint(1, 1), QPoint(27, 0), QPoint(27, 14)}) {
        QCOMPARE(picture.pixelColor(corner), QColor(Qt::black));
    }
    QCOMPARE(theme.nameNear(picture, {14, 0}), text("ControlBorderBrush"));
}

void CheckBoxPaintTest::switchIsMirrored()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QCheckBox checkBox;
    checkBox.setProperty("switch", true);
    for (const auto check : {off, on}) {
        QStyleOptionButton button = option(switchSize, QStyle::State_Enabled | check);
        const QImage picture =
            recorder.picture(QStyle::PE_IndicatorCheckBox, button, &checkBox, switchSize);
        button.direction = Qt::RightToLeft;
        const QImage mirrored =
            recorder.picture(QStyle::PE_IndicatorCheckBox, button, &checkBox, switchSize);
        QCOMPARE(theme.nameNear(mirrored, check == off ? atEnd : atStart),
                 theme.nameNear(picture, check == off ? atStart : atEnd));
        QVERIFY(theme.nameNear(mirrored, atStart) != theme.nameNear(picture, atStart));
    }
}

void CheckBoxPaintTest::switchOfNoChangeIsInTheMiddle()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QCheckBox checkBox;
    checkBox.setProperty("switch", true);
    const QImage picture =
        recorder.picture(QStyle::PE_IndicatorCheckBox,
                         option(switchSize, QStyle::State_Enabled | partly), &checkBox, switchSize);
    QCOMPARE(theme.nameAt(picture, {14, 7}), text("SwitchEllipseBrush"));
    QCOMPARE(theme.nameAt(picture, atStart), text("ControlBackgroundBrush"));
    QCOMPARE(theme.nameAt(picture, atEnd), text("ControlBackgroundBrush"));
}

void CheckBoxPaintTest::switchIsOutlinedAsACheckBox()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QCheckBox checkBox;
    checkBox.setProperty("switch", true);
    const auto outline = [&](QStyle::State state) {
        return theme.nameAt(recorder.picture(QStyle::PE_IndicatorCheckBox,
                                             option(switchSize, state), &checkBox, switchSize),
                            {14, 0});
    };
    const QStyle::State hovered = QStyle::State_Enabled | QStyle::State_MouseOver;
    QCOMPARE(outline(hovered), text("MainBrush"));
    QCOMPARE(outline(hovered | QStyle::State_Sunken), text("ControlBorderBrush"));
    checkBox.setProperty("drawErrorIndicator", true);
    QCOMPARE(outline(hovered), text("StatusDangerColor"));
}

void CheckBoxPaintTest::indicatorNeedsItsOption()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOption plain;
    plain.rect = QRect(QPoint(), size);
    plain.state = QStyle::State_Enabled | on;
    const QImage picture = recorder.picture(QStyle::PE_IndicatorCheckBox, plain, nullptr, size);
    QVERIFY(theme.namesIn(picture).isEmpty());
}

void CheckBoxPaintTest::anyRectangle_data()
{
    addOddRectangles();
}

void CheckBoxPaintTest::anyRectangle()
{
    QFETCH(QRect, rect);
    const PaintTheme theme(PaintTheme::Radii{1, 4, 6, 8});
    CallRecorder recorder;
    QCheckBox checkBox;
    for (const bool isSwitch : {false, true}) {
        checkBox.setProperty("switch", isSwitch);
        for (const auto check : {off, on, partly}) {
            QStyleOptionButton button =
                option(size, QStyle::State_Enabled | QStyle::State_Sunken | check);
            button.rect = rect;
            button.text = text("Scale bar");
            recorder.picture(QStyle::CE_CheckBox, button, &checkBox, size);
            QVERIFY(recorder.elements().contains(text("CE_CheckBoxLabel")));
            recorder.picture(QStyle::PE_IndicatorRadioButton, button, &checkBox, size);
            const QImage picture =
                recorder.picture(QStyle::PE_IndicatorCheckBox, button, &checkBox, size);
            QCOMPARE(theme.shows(picture, text("ControlBackgroundBrush")) ||
                         theme.shows(picture, text("MainBrush")),
                     rect.isValid() && rect.contains(7, 7));
        }
    }
}

QTEST_MAIN(CheckBoxPaintTest)
#include "CheckBoxPaintTest.moc"
