#include "style/families/ComboBoxSample.h"

#include <QtTest/QtTest>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDateEdit>

#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/painting/OddRectangles.h>
#include <support/painting/Pixels.h>
#include <support/themes/PaintTheme.h>

namespace {

constexpr QRect mirroredArrowRect(0, 0, 24, 28);
const QPoint inField(40, 14);
const QPoint onTop(40, 0);
constexpr QColor ground(1, 2, 3);

} // namespace

Q_DECLARE_METATYPE(QStyle::State)

/// Combo boxes, and what looks like them.
class ComboBoxPaintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void buttonReachesTheProxy();
    void buttonShowsTheFocus();
    void editableReachesTheProxy_data();
    void editableReachesTheProxy();
    void framelessHasNoOutline();
    void arrowIsOnDemand();
    void arrowRectangle_data();
    void arrowRectangle();
    void arrowOfEditableAnswersOnlyItself();
    void editableField_data();
    void editableField();
    void dateEditIsAnEditableComboBox();
    void errorMarkOfEditableLeavesTheArrow();
    void arrowOfButtonMakesWayForTheErrorMark();
    void needsItsOption();
    void anyRectangle_data();
    void anyRectangle();
};

void ComboBoxPaintTest::init()
{
    // Elements are painted with the widget's own font, which the painter of a picture has not.
    QApplication::setFont(QFont(text("DejaVu Sans"), 9));
}

void ComboBoxPaintTest::buttonReachesTheProxy()
{
    const PaintTheme theme;
    CallRecorder recorder;
    recorder.stopAt("PE_PanelButtonCommand");
    recorder.stopAt("PE_IndicatorArrowDown");
    const QComboBox comboBox;
    const QStyle::State state = QStyle::State_Enabled | QStyle::State_MouseOver;
    const QStyleOptionComboBox option = comboBoxOption(false, state);
    recorder.picture(QStyle::CC_ComboBox, option, &comboBox, sampleSize);
    QCOMPARE(recorder.elements(),
             QStringList({text("PE_PanelButtonCommand"), text("PE_IndicatorArrowDown")}));
    QCOMPARE(recorder.call("PE_PanelButtonCommand").rect, option.rect);
    QCOMPARE(recorder.call("PE_PanelButtonCommand").state, state);
    QCOMPARE(recorder.call("PE_IndicatorArrowDown").state, state);
}

void ComboBoxPaintTest::buttonShowsTheFocus()
{
    const PaintTheme theme;
    CallRecorder recorder;
    recorder.stopAt("PE_FrameFocusRect");
    const QStyle::State state =
        QStyle::State_Enabled | QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
    recorder.picture(QStyle::CC_ComboBox, comboBoxOption(false, state), nullptr, sampleSize);
    const PaintCall focus = recorder.call("PE_FrameFocusRect");
    QCOMPARE(focus.state, state);
    QCOMPARE(focus.rect, QRect(2, 2, 116, 24));
    recorder.picture(QStyle::CC_ComboBox, comboBoxOption(true, state), nullptr, sampleSize);
    QVERIFY(recorder.call("PE_FrameFocusRect").element.isEmpty());
}

void ComboBoxPaintTest::editableReachesTheProxy_data()
{
    QTest::addColumn<bool>("hasFrame");
    QTest::addColumn<QString>("element");
    QTest::newRow("with a frame") << true << text("PE_FrameLineEdit");
    QTest::newRow("frameless") << false << text("PE_PanelLineEdit");
}

void ComboBoxPaintTest::editableReachesTheProxy()
{
    QFETCH(bool, hasFrame);
    QFETCH(QString, element);
    const PaintTheme theme;
    CallRecorder recorder;
    recorder.stopAt("PE_IndicatorArrowDown");
    QComboBox comboBox;
    comboBox.setEditable(true);
    QStyleOptionComboBox option = comboBoxOption(true);
    option.frame = hasFrame;
    recorder.picture(QStyle::CC_ComboBox, option, &comboBox, sampleSize);
    QCOMPARE(recorder.elements(), QStringList({element, text("PE_IndicatorArrowDown")}));
    QCOMPARE(recorder.calls().front().rect, option.rect);
}

void ComboBoxPaintTest::framelessHasNoOutline()
{
    const PaintTheme theme;
    CallRecorder recorder;
    recorder.stopAt("PE_IndicatorArrowDown");
    QStyleOptionComboBox option = comboBoxOption(true);
    option.frame = false;
    const QImage picture =
        recorder.picture(QStyle::CC_ComboBox, option, nullptr, sampleSize, ground);
    QImage expected(sampleSize, picture.format());
    expected.fill(theme.brush(text("InputUncheckedBackgroundBrush")));
    QCOMPARE(picture, expected);
}

void ComboBoxPaintTest::arrowIsOnDemand()
{
    const PaintTheme theme;
    CallRecorder recorder;
    for (const bool isEditable : {false, true}) {
        QStyleOptionComboBox option = comboBoxOption(isEditable);
        option.subControls &= ~QStyle::SC_ComboBoxArrow;
        recorder.picture(QStyle::CC_ComboBox, option, nullptr, sampleSize);
        QVERIFY(!recorder.calls().empty());
        QVERIFY(recorder.call("PE_IndicatorArrowDown").element.isEmpty());
    }
}

void ComboBoxPaintTest::arrowRectangle_data()
{
    QTest::addColumn<bool>("isEditable");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QRect>("expected");
    QTest::newRow("button") << false << Qt::LeftToRight << arrowRect;
    QTest::newRow("button, right to left") << false << Qt::RightToLeft << mirroredArrowRect;
    QTest::newRow("editable") << true << Qt::LeftToRight << arrowRect;
    // The editor is where it is in the other direction.
    QTest::newRow("editable, right to left") << true << Qt::RightToLeft << arrowRect;
}

void ComboBoxPaintTest::arrowRectangle()
{
    QFETCH(bool, isEditable);
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(QRect, expected);
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionComboBox option = comboBoxOption(isEditable);
    option.direction = direction;
    recorder.picture(QStyle::CC_ComboBox, option, nullptr, sampleSize);
    QCOMPARE(recorder.call("PE_IndicatorArrowDown").rect, expected);
}

void ComboBoxPaintTest::arrowOfEditableAnswersOnlyItself()
{
    const PaintTheme theme;
    CallRecorder recorder;
    const QStyle::State pressed =
        QStyle::State_Enabled | QStyle::State_MouseOver | QStyle::State_Sunken;
    QStyleOptionComboBox option = comboBoxOption(true, pressed);
    const auto arrowState = [&] {
        recorder.picture(QStyle::CC_ComboBox, option, nullptr, sampleSize);
        return recorder.call("PE_IndicatorArrowDown").state;
    };
    option.activeSubControls = QStyle::SC_ComboBoxEditField;
    QCOMPARE(arrowState(), QStyle::State(QStyle::State_Enabled));
    option.activeSubControls = QStyle::SC_ComboBoxArrow;
    QCOMPARE(arrowState(), pressed);
}

void ComboBoxPaintTest::editableField_data()
{
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<QString>("border");
    QTest::addColumn<QString>("background");
    const QStyle::State enabled = QStyle::State_Enabled;
    QTest::newRow("at rest") << enabled << text("InputBorderBrush")
                             << text("InputUncheckedBackgroundBrush");
    QTest::newRow("focus") << (enabled | QStyle::State_HasFocus) << text("InputBorderActiveBrush")
                           << text("InputUncheckedBackgroundBrush");
    QTest::newRow("open") << (enabled | QStyle::State_On) << text("InputBorderBrush")
                          << text("InputCheckedBackgroundBrush");
    QTest::newRow("disabled") << QStyle::State(QStyle::State_None)
                              << text("InputBorderBrushDisabled")
                              << text("InputUncheckedBackgroundBrushDisabled");
}

void ComboBoxPaintTest::editableField()
{
    QFETCH(QStyle::State, state);
    QFETCH(QString, border);
    QFETCH(QString, background);
    const PaintTheme theme;
    CallRecorder recorder;
    QComboBox comboBox;
    comboBox.setEditable(true);
    const QImage picture =
        recorder.picture(QStyle::CC_ComboBox, comboBoxOption(true, state), &comboBox, sampleSize);
    QCOMPARE(theme.nameAt(picture, onTop), border);
    QCOMPARE(theme.nameAt(picture, inField), background);
}

void ComboBoxPaintTest::dateEditIsAnEditableComboBox()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QDateEdit edit;
    edit.setCalendarPopup(true);
    const QImage picture = recorder.picture(
        QStyle::CC_ComboBox, comboBoxOption(true, QStyle::State_Enabled | QStyle::State_HasFocus),
        &edit, sampleSize);
    QCOMPARE(recorder.elements().first(), text("PE_FrameLineEdit"));
    QVERIFY(recorder.elements().contains(text("PE_IndicatorArrowDown")));
    QCOMPARE(theme.nameAt(picture, onTop), text("InputBorderActiveBrush"));
    QCOMPARE(theme.nameAt(picture, inField), text("InputUncheckedBackgroundBrush"));
}

void ComboBoxPaintTest::errorMarkOfEditableLeavesTheArrow()
{
    const PaintTheme theme;
    CallRecorder recorder;
    recorder.stopAt("PE_IndicatorArrowDown");
    QComboBox comboBox;
    comboBox.setEditable(true);
    comboBox.setProperty("drawErrorIndicator", true);
    const QImage picture =
        recorder.picture(QStyle::CC_ComboBox, comboBoxOption(true), &comboBox, sampleSize);
    QCOMPARE(theme.nameAt(picture, onTop), text("StatusDangerColor"));
    QVERIFY(theme.shows(picture.copy(60, 1, 36, 26), text("StatusDangerColor")));
    QCOMPARE(theme.namesIn(picture.copy(103, 1, 16, 26)),
             QStringList{text("InputUncheckedBackgroundBrush")});
}

void ComboBoxPaintTest::arrowOfButtonMakesWayForTheErrorMark()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QComboBox comboBox;
    comboBox.setProperty("drawErrorIndicator", true);
    QStyleOptionComboBox option = comboBoxOption(false);
    recorder.picture(QStyle::CC_ComboBox, option, &comboBox, sampleSize);
    const QRect moved = arrowRect.translated(-20, 0);
    QCOMPARE(recorder.call("PE_IndicatorArrowDown").rect, moved);
    option.currentText = QString(100, QLatin1Char('m'));
    recorder.picture(QStyle::CE_ComboBoxLabel, option, &comboBox, sampleSize);
    QVERIFY(recorder.call("drawItemText").rect.right() < moved.center().x());
}

void ComboBoxPaintTest::needsItsOption()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionComplex option;
    option.rect = QRect(QPoint(), sampleSize);
    option.state = QStyle::State_Enabled;
    const QImage picture = recorder.picture(QStyle::CC_ComboBox, option, nullptr, sampleSize);
    QVERIFY(theme.namesIn(picture).isEmpty());
    QVERIFY(recorder.calls().empty());
}

void ComboBoxPaintTest::anyRectangle_data()
{
    addOddRectangles();
    QTest::newRow("narrow") << QRect(5, 5, 10, 20);
}

void ComboBoxPaintTest::anyRectangle()
{
    QFETCH(QRect, rect);
    const PaintTheme theme(PaintTheme::Radii{1, 4, 6, 8});
    QComboBox comboBox;
    comboBox.setProperty("drawErrorIndicator", true);
    for (const bool isEditable : {false, true}) {
        CallRecorder recorder;
        recorder.stopAt("PE_PanelButtonCommand");
        recorder.stopAt("PE_IndicatorArrowDown");
        QStyleOptionComboBox option = labelOption(isEditable);
        option.rect = rect;
        option.iconSize = QSize(16, 16);
        option.currentIcon = squareIcon(Qt::green);
        const QImage picture =
            recorder.picture(QStyle::CC_ComboBox, option, &comboBox, sampleSize, ground);
        const bool isPainted = isEditable && rect.isValid() && rect.contains(0, 0);
        QCOMPARE(picture.pixelColor(0, 0) == ground, !isPainted);
        recorder.picture(QStyle::CE_ComboBoxLabel, option, &comboBox, sampleSize, ground);
        QVERIFY(recorder.elements().contains(text("drawItemPixmap")));
    }
}

QTEST_MAIN(ComboBoxPaintTest)
#include "ComboBoxPaintTest.moc"
