#include <QtTest/QtTest>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDateEdit>

#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/themes/PaintTheme.h>

namespace {

constexpr QSize size(120, 28);
// The arrow and the edit fields, as the geometry of the style places them in that size.
constexpr QRect arrowRect(96, 0, 24, 28);
constexpr QRect mirroredArrowRect(0, 0, 24, 28);
const QPoint inField(40, 14);
const QPoint onTop(40, 0);
constexpr QColor ground(1, 2, 3);

QStyleOptionComboBox comboBoxOption(bool isEditable, QStyle::State state = QStyle::State_Enabled)
{
    QStyleOptionComboBox option;
    option.rect = QRect(QPoint(), size);
    option.state = state;
    option.editable = isEditable;
    option.subControls = QStyle::SC_All;
    return option;
}

/// An option of which the text fills every pixel of its line.
QStyleOptionComboBox labelOption(bool isEditable, QStyle::State state = QStyle::State_Enabled)
{
    QStyleOptionComboBox option = comboBoxOption(isEditable, state);
    option.currentText = QString(QChar(0x2588));
    return option;
}

QIcon iconOf(const QColor &color)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(color);
    return pixmap;
}

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
    void labelText_data();
    void labelText();
    void labelKeepsClearOfTheArrow_data();
    void labelKeepsClearOfTheArrow();
    void longTextIsElided();
    void placeholderKeepsItsColor();
    void textOfEditableIsTheEditors();
    void iconIsTinted();
    void textIsBesideTheIcon_data();
    void textIsBesideTheIcon();
    void iconOfEditableHasAField();
    void labelNeedsItsOption();
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
    recorder.picture(QStyle::CC_ComboBox, option, &comboBox, size);
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
    recorder.picture(QStyle::CC_ComboBox, comboBoxOption(false, state), nullptr, size);
    const PaintCall focus = recorder.call("PE_FrameFocusRect");
    QCOMPARE(focus.state, state);
    QCOMPARE(focus.rect, QRect(2, 2, 116, 24));
    recorder.picture(QStyle::CC_ComboBox, comboBoxOption(true, state), nullptr, size);
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
    recorder.picture(QStyle::CC_ComboBox, option, &comboBox, size);
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
    const QImage picture = recorder.picture(QStyle::CC_ComboBox, option, nullptr, size, ground);
    QImage expected(size, picture.format());
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
        recorder.picture(QStyle::CC_ComboBox, option, nullptr, size);
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
    recorder.picture(QStyle::CC_ComboBox, option, nullptr, size);
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
        recorder.picture(QStyle::CC_ComboBox, option, nullptr, size);
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
        recorder.picture(QStyle::CC_ComboBox, comboBoxOption(true, state), &comboBox, size);
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
        &edit, size);
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
        recorder.picture(QStyle::CC_ComboBox, comboBoxOption(true), &comboBox, size);
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
    recorder.picture(QStyle::CC_ComboBox, option, &comboBox, size);
    const QRect moved = arrowRect.translated(-20, 0);
    QCOMPARE(recorder.call("PE_IndicatorArrowDown").rect, moved);
    option.currentText = QString(100, QLatin1Char('m'));
    recorder.picture(QStyle::CE_ComboBoxLabel, option, &comboBox, size);
    QVERIFY(recorder.call("drawItemText").rect.right() < moved.center().x());
}

void ComboBoxPaintTest::needsItsOption()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionComplex option;
    option.rect = QRect(QPoint(), size);
    option.state = QStyle::State_Enabled;
    const QImage picture = recorder.picture(QStyle::CC_ComboBox, option, nullptr, size);
    QVERIFY(theme.namesIn(picture).isEmpty());
    QVERIFY(recorder.calls().empty());
}

void ComboBoxPaintTest::labelText_data()
{
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<QString>("brush");
    QTest::newRow("enabled") << QStyle::State(QStyle::State_Enabled) << text("ForegroundBrush");
    QTest::newRow("open") << (QStyle::State_Enabled | QStyle::State_On) << text("ForegroundBrush");
    QTest::newRow("disabled") << QStyle::State(QStyle::State_None)
                              << text("ForegroundBrushDisabled");
}

void ComboBoxPaintTest::labelText()
{
    QFETCH(QStyle::State, state);
    QFETCH(QString, brush);
    const PaintTheme theme;
    CallRecorder recorder;
    QComboBox comboBox;
    comboBox.addItem(text("20x"));
    QStyleOptionComboBox option = labelOption(false, state);
    option.palette.setBrush(QPalette::ButtonText, QColor(Qt::red));
    for (const QWidget *widget :
         {static_cast<const QWidget *>(&comboBox), static_cast<const QWidget *>(nullptr)}) {
        const QImage picture = recorder.picture(QStyle::CE_ComboBoxLabel, option, widget, size);
        QCOMPARE(recorder.elements(), QStringList{text("drawItemText")});
        QCOMPARE(recorder.call("drawItemText").text, option.currentText);
        QCOMPARE(theme.namesIn(picture), QStringList{brush});
    }
}

void ComboBoxPaintTest::labelKeepsClearOfTheArrow_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

void ComboBoxPaintTest::labelKeepsClearOfTheArrow()
{
    QFETCH(Qt::LayoutDirection, direction);
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionComboBox option = labelOption(false);
    option.direction = direction;
    const QImage picture = recorder.picture(QStyle::CE_ComboBoxLabel, option, nullptr, size);
    const QRect label = recorder.call("drawItemText").rect;
    const QRect arrow = QStyle::visualRect(direction, option.rect, arrowRect);
    QVERIFY(!label.intersects(arrow));
    // The text starts at the other end.
    const bool isMirrored = direction == Qt::RightToLeft;
    QCOMPARE(isMirrored ? 119 - label.right() : label.left(), 3);
    QVERIFY(theme.shows(picture.copy(isMirrored ? 110 : 0, 0, 10, 28), text("ForegroundBrush")));
}

void ComboBoxPaintTest::longTextIsElided()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionComboBox option = comboBoxOption(false);
    option.currentText = QString(100, QChar(0x2588));
    const QImage picture = recorder.picture(QStyle::CE_ComboBoxLabel, option, nullptr, size);
    const PaintCall call = recorder.call("drawItemText");
    QVERIFY(call.text.size() < option.currentText.size());
    QVERIFY(call.text.endsWith(QChar(0x2026)));
    QVERIFY(theme.namesIn(picture.copy(arrowRect)).isEmpty());
}

void ComboBoxPaintTest::placeholderKeepsItsColor()
{
    const PaintTheme theme;
    CallRecorder recorder;
    const QComboBox comboBox;
    QStyleOptionComboBox option = labelOption(false);
    option.palette.setBrush(QPalette::ButtonText, QColor(Qt::red));
    const QImage picture = recorder.picture(QStyle::CE_ComboBoxLabel, option, &comboBox, size);
    QVERIFY(theme.namesIn(picture).isEmpty());
    QCOMPARE(picture.pixelColor(5, 14), QColor(Qt::red));
}

void ComboBoxPaintTest::textOfEditableIsTheEditors()
{
    const PaintTheme theme;
    CallRecorder recorder;
    const QImage picture =
        recorder.picture(QStyle::CE_ComboBoxLabel, labelOption(true), nullptr, size);
    QVERIFY(recorder.calls().empty());
    QVERIFY(theme.namesIn(picture).isEmpty());
}

void ComboBoxPaintTest::iconIsTinted()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QComboBox comboBox;
    QStyleOptionComboBox option = comboBoxOption(false);
    option.iconSize = QSize(16, 16);
    // The colour in which the library's icons are drawn, and another one.
    option.currentIcon = iconOf(QColor(0xE5, 0xEE, 0xF4));
    const QImage tinted = recorder.picture(QStyle::CE_ComboBoxLabel, option, &comboBox, size);
    QCOMPARE(recorder.elements(), QStringList{text("drawItemPixmap")});
    QCOMPARE(theme.namesIn(tinted), QStringList{text("InputUncheckedForegroundBrush")});
    option.currentIcon = iconOf(Qt::green);
    const QImage colored = recorder.picture(QStyle::CE_ComboBoxLabel, option, &comboBox, size);
    QCOMPARE(colored.pixelColor(12, 14), QColor(Qt::green));
}

void ComboBoxPaintTest::textIsBesideTheIcon_data()
{
    labelKeepsClearOfTheArrow_data();
}

void ComboBoxPaintTest::textIsBesideTheIcon()
{
    QFETCH(Qt::LayoutDirection, direction);
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionComboBox option = labelOption(false);
    option.direction = direction;
    option.iconSize = QSize(16, 16);
    option.currentIcon = iconOf(Qt::green);
    recorder.picture(QStyle::CE_ComboBoxLabel, option, nullptr, size);
    const QRect icon = recorder.call("drawItemPixmap").rect;
    const QRect label = recorder.call("drawItemText").rect;
    QCOMPARE(icon.width(), 20);
    QVERIFY(!icon.intersects(label));
    QCOMPARE(icon.center().x() < label.center().x(), direction == Qt::LeftToRight);
}

void ComboBoxPaintTest::iconOfEditableHasAField()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QComboBox comboBox;
    comboBox.setEditable(true);
    QStyleOptionComboBox option = comboBoxOption(true);
    option.iconSize = QSize(16, 16);
    option.currentIcon = iconOf(Qt::green);
    for (const QWidget *widget :
         {static_cast<const QWidget *>(&comboBox), static_cast<const QWidget *>(nullptr)}) {
        const QImage picture = recorder.picture(QStyle::CE_ComboBoxLabel, option, widget, size);
        const QRect icon = recorder.call("drawItemPixmap").rect;
        QCOMPARE(theme.nameAt(picture, {icon.left(), icon.top() + 4}),
                 text("InputUncheckedBackgroundBrush"));
        QCOMPARE(theme.nameAt(picture, {icon.right(), 14}),
                 widget ? text("BackgroundSubLevel2Brush") : text("BackgroundUpLevel1Brush"));
    }
}

void ComboBoxPaintTest::labelNeedsItsOption()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionComplex option;
    option.rect = QRect(QPoint(), size);
    recorder.picture(QStyle::CE_ComboBoxLabel, option, nullptr, size);
    QVERIFY(recorder.calls().empty());
}

void ComboBoxPaintTest::anyRectangle_data()
{
    QTest::addColumn<QRect>("rect");
    constexpr int far = 1 << 24;
    QTest::newRow("null") << QRect();
    QTest::newRow("negative") << QRect(5, 5, -10, -10);
    QTest::newRow("one pixel") << QRect(5, 5, 1, 1);
    QTest::newRow("narrow") << QRect(5, 5, 10, 20);
    QTest::newRow("huge") << QRect(QPoint(-far, -far), QPoint(far, far));
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
        option.currentIcon = iconOf(Qt::green);
        const QImage picture =
            recorder.picture(QStyle::CC_ComboBox, option, &comboBox, size, ground);
        const bool isPainted = isEditable && rect.isValid() && rect.contains(0, 0);
        QCOMPARE(picture.pixelColor(0, 0) == ground, !isPainted);
        recorder.picture(QStyle::CE_ComboBoxLabel, option, &comboBox, size, ground);
        QVERIFY(recorder.elements().contains(text("drawItemPixmap")));
    }
}

QTEST_MAIN(ComboBoxPaintTest)
#include "ComboBoxPaintTest.moc"
