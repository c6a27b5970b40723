#include "style/families/ComboBoxSample.h"

#include <QtTest/QtTest>
#include <QtWidgets/QComboBox>

#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/painting/Pixels.h>
#include <support/themes/PaintTheme.h>

Q_DECLARE_METATYPE(QStyle::State)

/// The texts and icons of combo boxes.
class ComboBoxLabelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void textColors_data();
    void textColors();
    void keepsClearOfTheArrow_data();
    void keepsClearOfTheArrow();
    void longTextIsElided();
    void placeholderKeepsItsColor();
    void textOfEditableIsTheEditors();
    void iconIsTinted();
    void textIsBesideTheIcon_data();
    void textIsBesideTheIcon();
    void iconOfEditableHasAField();
    void translucentFieldIsDrawnToo();
    void largeIconKeepsToTheLabel();
    void needsItsOption();
};

void ComboBoxLabelTest::init()
{
    // Elements are painted with the widget's own font, which the painter of a picture has not.
    QApplication::setFont(QFont(text("DejaVu Sans"), 9));
}

void ComboBoxLabelTest::textColors_data()
{
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<QString>("brush");
    QTest::newRow("enabled") << QStyle::State(QStyle::State_Enabled) << text("ForegroundBrush");
    QTest::newRow("open") << (QStyle::State_Enabled | QStyle::State_On) << text("ForegroundBrush");
    QTest::newRow("disabled") << QStyle::State(QStyle::State_None)
                              << text("ForegroundBrushDisabled");
}

void ComboBoxLabelTest::textColors()
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
        const QImage picture =
            recorder.picture(QStyle::CE_ComboBoxLabel, option, widget, sampleSize);
        QCOMPARE(recorder.elements(), QStringList{text("drawItemText")});
        QCOMPARE(recorder.call("drawItemText").text, option.currentText);
        QCOMPARE(theme.namesIn(picture), QStringList{brush});
    }
}

void ComboBoxLabelTest::keepsClearOfTheArrow_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

void ComboBoxLabelTest::keepsClearOfTheArrow()
{
    QFETCH(Qt::LayoutDirection, direction);
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionComboBox option = labelOption(false);
    option.direction = direction;
    const QImage picture = recorder.picture(QStyle::CE_ComboBoxLabel, option, nullptr, sampleSize);
    const QRect label = recorder.call("drawItemText").rect;
    const QRect arrow = QStyle::visualRect(direction, option.rect, arrowRect);
    QVERIFY(!label.intersects(arrow));
    // The text starts at the other end.
    const bool isMirrored = direction == Qt::RightToLeft;
    QCOMPARE(isMirrored ? 119 - label.right() : label.left(), 3);
    QVERIFY(theme.shows(picture.copy(isMirrored ? 110 : 0, 0, 10, 28), text("ForegroundBrush")));
}

void ComboBoxLabelTest::longTextIsElided()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionComboBox option = comboBoxOption(false);
    option.currentText = blocks(100);
    const QImage picture = recorder.picture(QStyle::CE_ComboBoxLabel, option, nullptr, sampleSize);
    const PaintCall call = recorder.call("drawItemText");
    QVERIFY(call.text.size() < option.currentText.size());
    QVERIFY(call.text.endsWith(QChar(0x2026)));
    QVERIFY(theme.namesIn(picture.copy(arrowRect)).isEmpty());
}

void ComboBoxLabelTest::placeholderKeepsItsColor()
{
    const PaintTheme theme;
    CallRecorder recorder;
    const QComboBox comboBox;
    QStyleOptionComboBox option = labelOption(false);
    option.palette.setBrush(QPalette::ButtonText, QColor(Qt::red));
    const QImage picture =
        recorder.picture(QStyle::CE_ComboBoxLabel, option, &comboBox, sampleSize);
    QVERIFY(theme.namesIn(picture).isEmpty());
    QCOMPARE(picture.pixelColor(5, 14), QColor(Qt::red));
}

void ComboBoxLabelTest::textOfEditableIsTheEditors()
{
    const PaintTheme theme;
    CallRecorder recorder;
    const QImage picture =
        recorder.picture(QStyle::CE_ComboBoxLabel, labelOption(true), nullptr, sampleSize);
    QVERIFY(recorder.calls().empty());
    QVERIFY(theme.namesIn(picture).isEmpty());
}

void ComboBoxLabelTest::iconIsTinted()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QComboBox comboBox;
    QStyleOptionComboBox option = comboBoxOption(false);
    option.iconSize = QSize(16, 16);
    // The colour in which the library's icons are drawn, and another one.
    option.currentIcon = squareIcon(QColor(0xE5, 0xEE, 0xF4));
    const QImage tinted = recorder.picture(QStyle::CE_ComboBoxLabel, option, &comboBox, sampleSize);
    QCOMPARE(recorder.elements(), QStringList{text("drawItemPixmap")});
    QCOMPARE(theme.namesIn(tinted), QStringList{text("InputUncheckedForegroundBrush")});
    option.currentIcon = squareIcon(Qt::green);
    const QImage colored =
        recorder.picture(QStyle::CE_ComboBoxLabel, option, &comboBox, sampleSize);
    QCOMPARE(colored.pixelColor(12, 14), QColor(Qt::green));
}

void ComboBoxLabelTest::textIsBesideTheIcon_data()
{
    keepsClearOfTheArrow_data();
}

void ComboBoxLabelTest::textIsBesideTheIcon()
{
    QFETCH(Qt::LayoutDirection, direction);
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionComboBox option = labelOption(false);
    option.direction = direction;
    option.iconSize = QSize(16, 16);
    option.currentIcon = squareIcon(Qt::green);
    recorder.picture(QStyle::CE_ComboBoxLabel, option, nullptr, sampleSize);
    const QRect icon = recorder.call("drawItemPixmap").rect;
    const QRect label = recorder.call("drawItemText").rect;
    QCOMPARE(icon.width(), 20);
    QVERIFY(!icon.intersects(label));
    QCOMPARE(icon.center().x() < label.center().x(), direction == Qt::LeftToRight);
}

void ComboBoxLabelTest::iconOfEditableHasAField()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QComboBox comboBox;
    comboBox.setEditable(true);
    QStyleOptionComboBox option = comboBoxOption(true);
    option.iconSize = QSize(16, 16);
    option.currentIcon = squareIcon(Qt::green);
    for (const QWidget *widget :
         {static_cast<const QWidget *>(&comboBox), static_cast<const QWidget *>(nullptr)}) {
        const QImage picture =
            recorder.picture(QStyle::CE_ComboBoxLabel, option, widget, sampleSize);
        const QRect icon = recorder.call("drawItemPixmap").rect;
        QCOMPARE(theme.nameAt(picture, {icon.left(), icon.top() + 4}),
                 text("InputUncheckedBackgroundBrush"));
        QCOMPARE(theme.nameAt(picture, {icon.right(), 14}),
                 widget ? text("BackgroundSubLevel2Brush") : text("BackgroundUpLevel1Brush"));
    }
}

void ComboBoxLabelTest::translucentFieldIsDrawnToo()
{
    constexpr char name[] = "InputUncheckedBackgroundBrush";
    QVariantMap variables = qApp->property("theme_var").toMap();
    QVariantMap brushes = variables.value(text("brushes")).toMap();
    brushes.insert(text(name), QBrush(QColor(0, 0, 255, 128)));
    variables.insert(text("brushes"), brushes);
    qApp->setProperty("theme_var", variables);
    CallRecorder recorder;
    QStyleOptionComboBox option = comboBoxOption(true);
    option.iconSize = QSize(16, 16);
    option.currentIcon = squareIcon(Qt::green);
    const QImage picture =
        recorder.picture(QStyle::CE_ComboBoxLabel, option, nullptr, sampleSize, Qt::black);
    const QRect icon = recorder.call("drawItemPixmap").rect;
    QCOMPARE(picture.pixelColor(icon.left() + 1, icon.top() + 6).blue(), 128);
}

void ComboBoxLabelTest::largeIconKeepsToTheLabel()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionComboBox option = comboBoxOption(false);
    option.rect = QRect(0, 0, 40, 28);
    option.iconSize = QSize(32, 32);
    QPixmap square(option.iconSize);
    square.fill(Qt::green);
    option.currentIcon = QIcon(square);
    const QImage picture =
        recorder.picture(QStyle::CE_ComboBoxLabel, option, nullptr, option.rect.size());
    const QRect arrow = recorder.style().subControlRect(QStyle::CC_ComboBox, &option,
                                                        QStyle::SC_ComboBoxArrow, nullptr);
    const QRect icon = recorder.call("drawItemPixmap").rect;
    QVERIFY(icon.contains(arrow.center()));
    QVERIFY(picture.pixelColor(13, 14) != QColor(Qt::black));
    QCOMPARE(picture.pixelColor(arrow.center()), QColor(Qt::black));
}

void ComboBoxLabelTest::needsItsOption()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionComplex option;
    option.rect = QRect(QPoint(), sampleSize);
    recorder.picture(QStyle::CE_ComboBoxLabel, option, nullptr, sampleSize);
    QVERIFY(recorder.calls().empty());
}

QTEST_MAIN(ComboBoxLabelTest)
#include "ComboBoxLabelTest.moc"
