#include <QtTest/QtTest>
#include <QtWidgets/QCheckBox>

#include <support/Text.h>
#include <support/painting/CallRecorder.h>
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

QStyleOptionButton labelOption()
{
    QStyleOptionButton button = option({120, 20}, QStyle::State_Enabled | on);
    button.text = text("Scale bar");
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
    void control();
    void controlIsMirrored();
    void focusIsDrawn();
    void controlNeedsItsOption();
    void label_data();
    void label();
    void labelWithIcon();
    void mnemonics();
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

void CheckBoxPaintTest::control()
{
    const PaintTheme theme;
    CallRecorder recorder;
    const QCheckBox checkBox;
    const QStyleOptionButton button = labelOption();
    recorder.picture(QStyle::CE_CheckBox, button, &checkBox, button.rect.size());
    QCOMPARE(recorder.elements(), QStringList({text("PE_IndicatorCheckBox"),
                                               text("CE_CheckBoxLabel"), text("drawItemText")}));
    QCOMPARE(recorder.call("PE_IndicatorCheckBox").rect, QRect(0, 3, 14, 14));
    QCOMPARE(recorder.call("CE_CheckBoxLabel").rect, QRect(19, 0, 100, 20));
    QCOMPARE(recorder.call("CE_CheckBoxLabel").state, button.state);
    QCOMPARE(recorder.call("drawItemText").text, button.text);
}

void CheckBoxPaintTest::controlIsMirrored()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionButton button = labelOption();
    button.direction = Qt::RightToLeft;
    recorder.picture(QStyle::CE_CheckBox, button, nullptr, button.rect.size());
    QCOMPARE(recorder.call("PE_IndicatorCheckBox").rect, QRect(106, 3, 14, 14));
    QCOMPARE(recorder.call("CE_CheckBoxLabel").rect, QRect(1, 0, 100, 20));
}

void CheckBoxPaintTest::focusIsDrawn()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionButton button = labelOption();
    button.state |= QStyle::State_HasFocus;
    recorder.picture(QStyle::CE_CheckBox, button, nullptr, button.rect.size());
    const PaintCall focus = recorder.call("PE_FrameFocusRect");
    QCOMPARE(focus.rect, recorder.subElementRect(QStyle::SE_CheckBoxFocusRect, &button, nullptr));
    QCOMPARE(focus.state, button.state);
}

void CheckBoxPaintTest::controlNeedsItsOption()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOption plain;
    plain.rect = QRect(0, 0, 100, 20);
    recorder.picture(QStyle::CE_CheckBox, plain, nullptr, {100, 20});
    QVERIFY(recorder.calls().empty());
    recorder.picture(QStyle::CE_CheckBoxLabel, plain, nullptr, {100, 20});
    QVERIFY(recorder.calls().empty());
}

void CheckBoxPaintTest::label_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

void CheckBoxPaintTest::label()
{
    QFETCH(Qt::LayoutDirection, direction);
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionButton button = labelOption();
    button.direction = direction;
    // A glyph that fills its box shows where the text is, and its colour.
    button.text = QString(QChar(0x2588));
    button.palette.setBrush(QPalette::WindowText, QColor(Qt::red));
    const QImage picture =
        recorder.picture(QStyle::CE_CheckBoxLabel, button, nullptr, button.rect.size(), Qt::black);
    QCOMPARE(recorder.elements(), QStringList{text("drawItemText")});
    QCOMPARE(recorder.call("drawItemText").rect, button.rect);
    const int x = direction == Qt::LeftToRight ? 3 : 116;
    QCOMPARE(picture.pixelColor(x, 10), QColor(Qt::red));
    QCOMPARE(picture.pixelColor(119 - x, 10), QColor(Qt::black));
}

void CheckBoxPaintTest::labelWithIcon()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::green);
    QStyleOptionButton button = labelOption();
    button.icon = pixmap;
    button.iconSize = QSize(16, 16);
    const QImage picture =
        recorder.picture(QStyle::CE_CheckBoxLabel, button, nullptr, button.rect.size());
    QCOMPARE(recorder.elements(), QStringList({text("drawItemPixmap"), text("drawItemText")}));
    QCOMPARE(picture.pixelColor(0, 2), QColor(Qt::green));
    QCOMPARE(picture.pixelColor(15, 17), QColor(Qt::green));
    QCOMPARE(recorder.call("drawItemText").rect, QRect(20, 0, 100, 20));

    button.direction = Qt::RightToLeft;
    recorder.picture(QStyle::CE_CheckBoxLabel, button, nullptr, button.rect.size());
    QCOMPARE(recorder.call("drawItemText").rect, QRect(0, 0, 100, 20));

    button.text.clear();
    recorder.picture(QStyle::CE_CheckBoxLabel, button, nullptr, button.rect.size());
    QCOMPARE(recorder.elements(), QStringList{text("drawItemPixmap")});
}

void CheckBoxPaintTest::mnemonics()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionButton plain = labelOption();
    QStyleOptionButton marked = labelOption();
    plain.text = text("II");
    marked.text = text("&II");
    const auto picture = [&](const QStyleOptionButton &button) {
        return recorder.picture(QStyle::CE_CheckBoxLabel, button, nullptr, button.rect.size(),
                                Qt::white);
    };
    const bool isUnderlined =
        recorder.styleHint(QStyle::SH_UnderlineShortcut, &marked, nullptr) != 0;
    QCOMPARE(picture(marked) != picture(plain), isUnderlined);
}

void CheckBoxPaintTest::anyRectangle_data()
{
    QTest::addColumn<QRect>("rect");
    constexpr int far = 1 << 24;
    QTest::newRow("null") << QRect();
    QTest::newRow("negative") << QRect(5, 5, -10, -10);
    QTest::newRow("one pixel") << QRect(5, 5, 1, 1);
    QTest::newRow("huge") << QRect(QPoint(-far, -far), QPoint(far, far));
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
