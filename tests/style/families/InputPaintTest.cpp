#include <QtTest/QtTest>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QTextEdit>

#include <support/TestedMode.h>
#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/painting/OddRectangles.h>
#include <support/themes/PaintTheme.h>

namespace {

constexpr QSize size(60, 26);
const QPoint middle(30, 13);
const QPoint onTop(30, 0);
constexpr QColor ground(1, 2, 3);

QStyleOptionFrame frameOption(QStyle::State state, int lineWidth = 1)
{
    QStyleOptionFrame option;
    option.rect = QRect(QPoint(), size);
    option.state = state;
    option.lineWidth = lineWidth;
    return option;
}

} // namespace

Q_DECLARE_METATYPE(QStyle::State)

/// Frames, and the panels of line edits.
class InputPaintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void frame_data();
    void frame();
    void frameOfComboBoxListIsThatOfMenus();
    void frameOfTextEdits_data();
    void frameOfTextEdits();
    void textEditsAreSquare();
    void lineEditFrame_data();
    void lineEditFrame();
    void lineEditFrameIsRound();
    void errorIsOutlinedAndMarked();
    void errorMarkIsMirrored();
    void openComboBoxHasItsOwnGround();
    void panel_data();
    void panel();
    void panelDrawsTheFrame();
    void panelOfFramelessEditReachesTheEdges();
    void panelNeedsItsOption();
    void anyRectangle_data();
    void anyRectangle();
};

void InputPaintTest::frame_data()
{
    QTest::addColumn<bool>("hasWidget");
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<QString>("border");
    const QStyle::State focus = QStyle::State_Enabled | QStyle::State_HasFocus;
    QTest::newRow("label") << true << QStyle::State(QStyle::State_Enabled)
                           << text("CardBorderBrush");
    QTest::newRow("label with the focus") << true << focus << text("CardBorderBrush");
    QTest::newRow("disabled label")
        << true << QStyle::State(QStyle::State_None) << text("CardBorderBrushDisabled");
    QTest::newRow("no widget") << false << QStyle::State(QStyle::State_Enabled)
                               << text("CardBorderBrush");
}

void InputPaintTest::frame()
{
    QFETCH(bool, hasWidget);
    QFETCH(QStyle::State, state);
    QFETCH(QString, border);
    const PaintTheme theme(PaintTheme::Radii{1, 4, 6, 8});
    CallRecorder recorder;
    const QLabel label;
    const QImage picture = recorder.picture(QStyle::PE_Frame, frameOption(state),
                                            hasWidget ? &label : nullptr, size, ground);
    for (const QPoint &pixel : {QPoint(0, 0), onTop, QPoint(59, 25), QPoint(0, 25)}) {
        QCOMPARE(theme.nameAt(picture, pixel), border);
    }
    QCOMPARE(picture.pixelColor(1, 1), ground);
    QCOMPARE(picture.pixelColor(58, 24), ground);
    QVERIFY(recorder.calls().empty());
}

void InputPaintTest::frameOfComboBoxListIsThatOfMenus()
{
    const PaintTheme theme;
    CallRecorder recorder;
    recorder.stopAt("PE_PanelMenu");
    QComboBox comboBox;
    const QWidget *container = comboBox.view()->parentWidget();
    const QStyleOptionFrame option = frameOption(QStyle::State_Enabled);
    const QImage picture = recorder.picture(QStyle::PE_Frame, option, container, size);
    if (testsCompleteMode()) {
        // It is a frame alone, whose ground is the list's.
        QVERIFY(recorder.elements().isEmpty());
        return;
    }
    QCOMPARE(recorder.elements(), QStringList{text("PE_PanelMenu")});
    const PaintCall call = recorder.call("PE_PanelMenu");
    QCOMPARE(call.rect, option.rect);
    QCOMPARE(call.state, option.state | QStyle::State_Raised);
    QVERIFY(theme.namesIn(picture).isEmpty());
}

void InputPaintTest::frameOfTextEdits_data()
{
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<bool>("isReadOnly");
    QTest::addColumn<QString>("border");
    QTest::addColumn<QString>("background");
    const QStyle::State enabled = QStyle::State_Enabled;
    QTest::newRow("at rest") << enabled << false << text("InputBorderBrush")
                             << text("InputUncheckedBackgroundBrush");
    QTest::newRow("focus") << (enabled | QStyle::State_HasFocus) << false
                           << text("InputBorderActiveBrush")
                           << text("InputUncheckedBackgroundBrush");
    QTest::newRow("read-only") << enabled << true << text("InputBorderBrush")
                               << text("InputUncheckedBackgroundBrush");
    QTest::newRow("disabled") << QStyle::State(QStyle::State_None) << false
                              << text("InputBorderBrushDisabled")
                              << text("InputUncheckedBackgroundBrushDisabled");
}

void InputPaintTest::frameOfTextEdits()
{
    QFETCH(QStyle::State, state);
    QFETCH(bool, isReadOnly);
    QFETCH(QString, border);
    QFETCH(QString, background);
    const PaintTheme theme;
    CallRecorder recorder;
    QTextEdit textEdit;
    textEdit.setReadOnly(isReadOnly);
    QPlainTextEdit plainTextEdit;
    plainTextEdit.setReadOnly(isReadOnly);
    for (const QWidget *widget :
         {static_cast<QWidget *>(&textEdit), static_cast<QWidget *>(&plainTextEdit)}) {
        const QImage picture = recorder.picture(QStyle::PE_Frame, frameOption(state), widget, size);
        QCOMPARE(theme.nameAt(picture, onTop), border);
        QCOMPARE(theme.nameAt(picture, middle), background);
    }
}

void InputPaintTest::textEditsAreSquare()
{
    const PaintTheme theme(PaintTheme::Radii{1, 6, 6, 8});
    CallRecorder recorder;
    const QTextEdit textEdit;
    const QImage picture =
        recorder.picture(QStyle::PE_Frame, frameOption(QStyle::State_Enabled), &textEdit, size);
    QCOMPARE(theme.nameAt(picture, {0, 0}), text("InputBorderBrush"));
    QCOMPARE(theme.nameAt(picture, {1, 1}), text("InputUncheckedBackgroundBrush"));
}

void InputPaintTest::lineEditFrame_data()
{
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<QString>("border");
    const QStyle::State enabled = QStyle::State_Enabled;
    QTest::newRow("at rest") << enabled << text("InputBorderBrush");
    QTest::newRow("hovered") << (enabled | QStyle::State_MouseOver) << text("InputBorderBrush");
    QTest::newRow("focus") << (enabled | QStyle::State_HasFocus) << text("InputBorderActiveBrush");
    QTest::newRow("read-only") << (enabled | QStyle::State_ReadOnly) << text("InputBorderBrush");
    QTest::newRow("read-only, focus") << (enabled | QStyle::State_ReadOnly | QStyle::State_HasFocus)
                                      << text("InputBorderActiveBrush");
    QTest::newRow("disabled") << QStyle::State(QStyle::State_None)
                              << text("InputBorderBrushDisabled");
}

void InputPaintTest::lineEditFrame()
{
    QFETCH(QStyle::State, state);
    QFETCH(QString, border);
    const PaintTheme theme;
    CallRecorder recorder;
    const QLineEdit edit;
    for (const QWidget *widget :
         {static_cast<const QWidget *>(&edit), static_cast<const QWidget *>(nullptr)}) {
        const QImage picture =
            recorder.picture(QStyle::PE_FrameLineEdit, frameOption(state), widget, size);
        QCOMPARE(theme.nameAt(picture, onTop), border);
        const bool isEnabled = state.testFlag(QStyle::State_Enabled);
        QCOMPARE(theme.nameAt(picture, middle),
                 isEnabled ? text("InputUncheckedBackgroundBrush")
                           : text("InputUncheckedBackgroundBrushDisabled"));
    }
}

void InputPaintTest::lineEditFrameIsRound()
{
    const PaintTheme theme(PaintTheme::Radii{1, 6, 1, 1});
    CallRecorder recorder;
    const QImage picture = recorder.picture(
        QStyle::PE_FrameLineEdit, frameOption(QStyle::State_Enabled), nullptr, size, ground);
    QCOMPARE(picture.pixelColor(0, 0), ground);
    QCOMPARE(picture.pixelColor(59, 25), ground);
    QCOMPARE(theme.nameAt(picture, onTop), text("InputBorderBrush"));
}

void InputPaintTest::errorIsOutlinedAndMarked()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QLineEdit edit;
    QStyleOptionFrame option = frameOption(QStyle::State_Enabled | QStyle::State_HasFocus);
    const auto isMarked = [&](const QImage &picture) {
        return theme.shows(picture.copy(30, 1, 29, 24), text("StatusDangerColor"));
    };
    QVERIFY(!isMarked(recorder.picture(QStyle::PE_FrameLineEdit, option, &edit, size)));

    edit.setProperty("drawErrorIndicator", true);
    const QImage picture = recorder.picture(QStyle::PE_FrameLineEdit, option, &edit, size);
    QCOMPARE(theme.nameAt(picture, onTop), text("StatusDangerColor"));
    QVERIFY(isMarked(picture));

    option.state = QStyle::State_None;
    const QImage disabled = recorder.picture(QStyle::PE_FrameLineEdit, option, &edit, size);
    QCOMPARE(theme.nameAt(disabled, onTop), text("StatusDangerColorDisabled"));
}

void InputPaintTest::errorMarkIsMirrored()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QLineEdit edit;
    edit.setProperty("drawErrorIndicator", true);
    QStyleOptionFrame option = frameOption(QStyle::State_Enabled);
    const auto isMarked = [&](const QRect &area) {
        const QImage picture = recorder.picture(QStyle::PE_FrameLineEdit, option, &edit, size);
        return theme.shows(picture.copy(area), text("StatusDangerColor"));
    };
    const QRect leftHalf(1, 1, 29, 24);
    const QRect rightHalf(30, 1, 29, 24);
    QVERIFY(!isMarked(leftHalf));
    QVERIFY(isMarked(rightHalf));
    option.direction = Qt::RightToLeft;
    QVERIFY(isMarked(leftHalf));
    QVERIFY(!isMarked(rightHalf));
}

void InputPaintTest::openComboBoxHasItsOwnGround()
{
    const PaintTheme theme;
    CallRecorder recorder;
    const QComboBox comboBox;
    QStyleOptionFrame option = frameOption(QStyle::State_Enabled);
    const auto background = [&] {
        return theme.nameAt(recorder.picture(QStyle::PE_FrameLineEdit, option, &comboBox, size),
                            middle);
    };
    QCOMPARE(background(), text("InputUncheckedBackgroundBrush"));
    option.state |= QStyle::State_On;
    QCOMPARE(background(), text("InputCheckedBackgroundBrush"));
}

void InputPaintTest::panel_data()
{
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<QString>("background");
    const QStyle::State enabled = QStyle::State_Enabled;
    QTest::newRow("at rest") << enabled << text("InputUncheckedBackgroundBrush");
    QTest::newRow("focus") << (enabled | QStyle::State_HasFocus)
                           << text("InputBackgroundActiveBrush");
    QTest::newRow("read-only") << (enabled | QStyle::State_ReadOnly)
                               << text("InputUncheckedBackgroundBrush");
    QTest::newRow("read-only, focus") << (enabled | QStyle::State_HasFocus | QStyle::State_ReadOnly)
                                      << text("InputUncheckedBackgroundBrush");
    QTest::newRow("disabled") << QStyle::State(QStyle::State_None)
                              << text("InputUncheckedBackgroundBrushDisabled");
}

void InputPaintTest::panel()
{
    QFETCH(QStyle::State, state);
    QFETCH(QString, background);
    const PaintTheme theme;
    const QLineEdit edit;
    for (const QWidget *widget :
         {static_cast<const QWidget *>(&edit), static_cast<const QWidget *>(nullptr)}) {
        for (const int lineWidth : {0, 1}) {
            CallRecorder recorder;
            const QImage picture = recorder.picture(QStyle::PE_PanelLineEdit,
                                                    frameOption(state, lineWidth), widget, size);
            QCOMPARE(theme.nameAt(picture, middle), background);
        }
    }
}

void InputPaintTest::panelDrawsTheFrame()
{
    const PaintTheme theme;
    CallRecorder recorder;
    const QLineEdit edit;
    const QStyleOptionFrame option = frameOption(QStyle::State_Enabled | QStyle::State_HasFocus);
    const QImage picture = recorder.picture(QStyle::PE_PanelLineEdit, option, &edit, size);
    QCOMPARE(recorder.elements(), QStringList{text("PE_FrameLineEdit")});
    QCOMPARE(recorder.call("PE_FrameLineEdit").rect, option.rect);
    QCOMPARE(recorder.call("PE_FrameLineEdit").state, option.state);
    QCOMPARE(theme.nameAt(picture, onTop), text("InputBorderActiveBrush"));
    QCOMPARE(theme.namesIn(picture),
             QStringList({text("InputBackgroundActiveBrush"), text("InputBorderActiveBrush")}));
}

void InputPaintTest::panelOfFramelessEditReachesTheEdges()
{
    const PaintTheme theme;
    CallRecorder recorder;
    const QImage picture = recorder.picture(
        QStyle::PE_PanelLineEdit, frameOption(QStyle::State_Enabled, 0), nullptr, size, ground);
    QVERIFY(recorder.calls().empty());
    QImage expected(size, picture.format());
    expected.fill(theme.brush(text("InputUncheckedBackgroundBrush")));
    QCOMPARE(picture, expected);
}

void InputPaintTest::panelNeedsItsOption()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOption option;
    option.rect = QRect(QPoint(), size);
    option.state = QStyle::State_Enabled;
    const QImage picture = recorder.picture(QStyle::PE_PanelLineEdit, option, nullptr, size);
    QVERIFY(theme.namesIn(picture).isEmpty());
}

void InputPaintTest::anyRectangle_data()
{
    addOddRectangles();
    QTest::newRow("empty elsewhere") << QRect(5, 5, 0, 0);
}

void InputPaintTest::anyRectangle()
{
    QFETCH(QRect, rect);
    const PaintTheme theme(PaintTheme::Radii{1, 4, 6, 8});
    CallRecorder recorder;
    QLineEdit edit;
    edit.setProperty("drawErrorIndicator", true);
    QStyleOptionFrame option = frameOption(QStyle::State_Enabled);
    option.rect = rect;
    for (const auto element :
         {QStyle::PE_Frame, QStyle::PE_FrameLineEdit, QStyle::PE_PanelLineEdit}) {
        const QImage picture = recorder.picture(element, option, &edit, size, ground);
        // Frames of huge rectangles are far away, and grounds are not.
        const bool isPainted = element != QStyle::PE_Frame && rect.isValid() && rect.contains(0, 0);
        QCOMPARE(picture.pixelColor(0, 0) == ground, !isPainted);
    }
}

QTEST_MAIN(InputPaintTest)
#include "InputPaintTest.moc"
