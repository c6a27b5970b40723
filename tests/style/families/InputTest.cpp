#include <QtTest/QtTest>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDateEdit>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>

#include <support/Text.h>
#include <support/Variables.h>
#include <support/geometry/FusionReference.h>
#include <support/painting/CallRecorder.h>
#include <support/themes/PaintTheme.h>

using TARN::BaseStyle;

namespace {

constexpr QSize size(60, 26);
constexpr QColor ground(1, 2, 3);

QStyleOptionFrame frameOption(QStyle::State state, int lineWidth = 1)
{
    QStyleOptionFrame option;
    option.rect = QRect(QPoint(), size);
    option.state = state;
    option.lineWidth = lineWidth;
    return option;
}

/// Returns the widget that a spin box or a combo box edits its text with.
QLineEdit &editorOf(QWidget &widget)
{
    return *widget.findChild<QLineEdit *>();
}

} // namespace

/// The sizes of line edits, which go by those of buttons, and the editors of other widgets.
class InputTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lineEdit();
    void buttonOptionsAreUsedAsTheyAre();
    void inputsAreAsHighAsButtons_data();
    void inputsAreAsHighAsButtons();
    void editorOfSpinBoxHasTheGroundOfTheSpinBox();
    void editorWithoutButtonsLeavesTheOutline_data();
    void editorWithoutButtonsLeavesTheOutline();
    void translucentGroundIsNotPaintedTwice();
    void editorOfComboBoxPaintsNothing_data();
    void editorOfComboBoxPaintsNothing();
};

void InputTest::lineEdit()
{
    const BaseStyle style;
    const FusionReference reference;
    const QLineEdit lineEdit;
    QStyleOptionFrame option;
    option.initFrom(&lineEdit);
    option.lineWidth = 2;
    const QStyleOptionButton button = buttonOption(option);
    const QWidget *widgets[] = {&lineEdit, nullptr};
    for (const QWidget *widget : widgets) {
        for (const int height : {4, 16, 17, 30, 31}) {
            const QSize contents(120, height);
            const QSize expected =
                style.sizeFromContents(QStyle::CT_PushButton, &button, contents, widget);
            const QSize fusion =
                reference.fusionSize(QStyle::CT_LineEdit, option, contents, widget);
            QCOMPARE(style.sizeFromContents(QStyle::CT_LineEdit, &option, contents, widget),
                     QSize(fusion.width(), expected.height()));
        }
    }
}

void InputTest::buttonOptionsAreUsedAsTheyAre()
{
    const BaseStyle style;
    QStyleOptionButton option;
    option.icon = QIcon(QPixmap(32, 32));
    option.iconSize = QSize(32, 32);
    const QStyleOptionButton iconless;
    const QSize contents(120, 33);
    const auto height = [&](QStyle::ContentsType type, const QStyleOptionButton &button) {
        return style.sizeFromContents(type, &button, contents, nullptr).height();
    };
    // The base style makes a button with an icon lower.
    QVERIFY(height(QStyle::CT_PushButton, option) != height(QStyle::CT_PushButton, iconless));
    QCOMPARE(height(QStyle::CT_LineEdit, option), height(QStyle::CT_PushButton, option));
    QCOMPARE(height(QStyle::CT_LineEdit, iconless), height(QStyle::CT_PushButton, iconless));
    const QSize lower = contents - QSize(0, 1);
    QCOMPARE(height(QStyle::CT_ComboBox, option),
             style.sizeFromContents(QStyle::CT_PushButton, &option, lower, nullptr).height());
}

void InputTest::inputsAreAsHighAsButtons_data()
{
    QTest::addColumn<int>("fontSize");
    QTest::addColumn<int>("comboBoxGrowth");
    QTest::addColumn<int>("lineEditGrowth");
    // A button has room for an icon, and so for the lines of a small font and their margins.
    QTest::newRow("small font") << 11 << 0 << 0;
    // The margins that the inputs, but not the button, count among their contents.
    QTest::newRow("large font") << 30 << 1 << 2;
}

void InputTest::inputsAreAsHighAsButtons()
{
    QFETCH(int, fontSize);
    QFETCH(int, comboBoxGrowth);
    QFETCH(int, lineEditGrowth);
    BaseStyle style;
    QFont font(text("DejaVu Sans"));
    font.setPixelSize(fontSize);
    QWidget row;
    auto *layout = new QHBoxLayout(&row);
    auto *button = new QPushButton(text("Caption"));
    auto *comboBox = new QComboBox;
    comboBox->addItem(text("Caption"));
    auto *lineEdit = new QLineEdit(text("Caption"));
    for (QWidget *widget : {static_cast<QWidget *>(button), static_cast<QWidget *>(comboBox),
                            static_cast<QWidget *>(lineEdit)}) {
        layout->addWidget(widget);
        widget->setStyle(&style);
        widget->setFont(font);
    }
    row.show();
    QVERIFY(QTest::qWaitForWindowExposed(&row));
    QVERIFY(button->height() > fontSize);
    QCOMPARE(comboBox->height() - button->height(), comboBoxGrowth);
    QCOMPARE(lineEdit->height() - button->height(), lineEditGrowth);
}

void InputTest::editorOfSpinBoxHasTheGroundOfTheSpinBox()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QSpinBox spinBox;
    const QImage picture = recorder.picture(
        QStyle::PE_PanelLineEdit, frameOption(QStyle::State_Enabled | QStyle::State_HasFocus, 0),
        &editorOf(spinBox), size);
    QCOMPARE(theme.namesIn(picture), QStringList{text("InputUncheckedBackgroundBrush")});
    QCOMPARE(theme.nameAt(picture, {59, 13}), text("InputUncheckedBackgroundBrush"));
}

void InputTest::editorWithoutButtonsLeavesTheOutline_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<int>("firstPainted");
    QTest::addColumn<int>("lastPainted");
    QTest::newRow("left to right") << Qt::LeftToRight << 0 << 57;
    QTest::newRow("right to left") << Qt::RightToLeft << 2 << 59;
}

void InputTest::editorWithoutButtonsLeavesTheOutline()
{
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(int, firstPainted);
    QFETCH(int, lastPainted);
    const PaintTheme theme;
    CallRecorder recorder;
    QSpinBox spinBox;
    spinBox.setButtonSymbols(QAbstractSpinBox::NoButtons);
    QStyleOptionFrame option = frameOption(QStyle::State_Enabled, 0);
    option.direction = direction;
    const QImage picture =
        recorder.picture(QStyle::PE_PanelLineEdit, option, &editorOf(spinBox), size, ground);
    for (int x = 0; x < size.width(); ++x) {
        const bool isPainted = x >= firstPainted && x <= lastPainted;
        QCOMPARE(picture.pixelColor(x, 13),
                 isPainted ? theme.brush(text("InputUncheckedBackgroundBrush")) : ground);
    }
}

void InputTest::translucentGroundIsNotPaintedTwice()
{
    const QColor translucent(200, 100, 50, 100);
    publishVariables({{text("brushes"),
                       QVariantMap{{text("InputUncheckedBackgroundBrush"), QBrush(translucent)}}}});
    CallRecorder recorder;
    QSpinBox spinBox;
    const QImage picture =
        recorder.picture(QStyle::PE_PanelLineEdit, frameOption(QStyle::State_Enabled, 0),
                         &editorOf(spinBox), size, ground);
    QImage untouched(size, picture.format());
    untouched.fill(ground);
    QCOMPARE(picture, untouched);
}

void InputTest::editorOfComboBoxPaintsNothing_data()
{
    QTest::addColumn<bool>("isDateEdit");
    QTest::newRow("editable combo box") << false;
    QTest::newRow("date edit with a calendar") << true;
}

void InputTest::editorOfComboBoxPaintsNothing()
{
    QFETCH(bool, isDateEdit);
    const PaintTheme theme;
    CallRecorder recorder;
    QComboBox comboBox;
    comboBox.setEditable(true);
    QDateEdit dateEdit;
    dateEdit.setCalendarPopup(true);
    QWidget &parent = isDateEdit ? static_cast<QWidget &>(dateEdit) : comboBox;
    QStyleOptionFrame option = frameOption(QStyle::State_Enabled | QStyle::State_HasFocus, 0);
    const QImage picture =
        recorder.picture(QStyle::PE_PanelLineEdit, option, &editorOf(parent), size);
    QVERIFY(theme.namesIn(picture).isEmpty());
}

QTEST_MAIN(InputTest)
#include "InputTest.moc"
