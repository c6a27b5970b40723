#include <QtTest/QtTest>
#include <QtWidgets/QCheckBox>

#include <support/Text.h>
#include <support/geometry/FusionReference.h>
#include <support/painting/CallRecorder.h>
#include <support/painting/Pixels.h>
#include <support/themes/PaintTheme.h>

using TARN::BaseStyle;

namespace {

constexpr QSize size(14, 14);

constexpr QStyle::StateFlag on = QStyle::State_On;

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

/// Check boxes and switches: their rectangles and their labels.
class CheckBoxTest : public QObject
{
    Q_OBJECT

private:
    static void compareCheckBoxRect(QStyle::SubElement element);

private Q_SLOTS:
    void indicator_data();
    void indicator();
    void contents_data();
    void contents();
    void metricsCanBeChanged();
    void control();
    void controlIsMirrored();
    void focusIsDrawn();
    void controlNeedsItsOption();
    void label_data();
    void label();
    void labelWithIcon();
    void mnemonics();
};

void CheckBoxTest::indicator_data()
{
    QTest::addColumn<bool>("isSwitch");
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QRect>("expected");
    const QRect high(0, 0, 100, 30);
    const QRect moved(10, 20, 100, 21);
    const QRect low(0, 0, 100, 10);
    const auto left = Qt::LeftToRight;
    const auto right = Qt::RightToLeft;
    QTest::newRow("check box") << false << high << left << QRect(0, 8, 14, 14);
    QTest::newRow("check box, mirrored") << false << high << right << QRect(86, 8, 14, 14);
    QTest::newRow("switch") << true << high << left << QRect(0, 7, 28, 15);
    QTest::newRow("switch, mirrored") << true << high << right << QRect(72, 7, 28, 15);
    QTest::newRow("moved") << false << moved << left << QRect(10, 23, 14, 14);
    QTest::newRow("moved, mirrored") << false << moved << right << QRect(96, 23, 14, 14);
    QTest::newRow("moved switch") << true << moved << left << QRect(10, 23, 28, 15);
    QTest::newRow("moved switch, mirrored") << true << moved << right << QRect(82, 23, 28, 15);
    QTest::newRow("low") << false << low << left << QRect(0, -2, 14, 14);
}

void CheckBoxTest::indicator()
{
    compareCheckBoxRect(QStyle::SE_CheckBoxIndicator);
}

void CheckBoxTest::contents_data()
{
    QTest::addColumn<bool>("isSwitch");
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QRect>("expected");
    const QRect origin(0, 0, 100, 30);
    const QRect moved(10, 20, 100, 21);
    const auto left = Qt::LeftToRight;
    const auto right = Qt::RightToLeft;
    QTest::newRow("check box") << false << origin << left << QRect(19, 0, 80, 30);
    QTest::newRow("check box, mirrored") << false << origin << right << QRect(1, 0, 80, 30);
    QTest::newRow("switch") << true << origin << left << QRect(33, 0, 66, 30);
    QTest::newRow("switch, mirrored") << true << origin << right << QRect(1, 0, 66, 30);
    QTest::newRow("moved") << false << moved << left << QRect(29, 20, 80, 21);
    QTest::newRow("moved, mirrored") << false << moved << right << QRect(11, 20, 80, 21);
    QTest::newRow("moved switch, mirrored") << true << moved << right << QRect(11, 20, 66, 21);
}

void CheckBoxTest::contents()
{
    compareCheckBoxRect(QStyle::SE_CheckBoxContents);
}

void CheckBoxTest::compareCheckBoxRect(QStyle::SubElement element)
{
    QFETCH(bool, isSwitch);
    QFETCH(QRect, rect);
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(QRect, expected);
    const BaseStyle style;
    QCheckBox checkBox;
    checkBox.setProperty("switch", isSwitch);
    QStyleOptionButton button;
    button.rect = rect;
    button.direction = direction;
    QCOMPARE(style.subElementRect(element, &button, &checkBox), expected);
    QStyleOption plain;
    plain.rect = rect;
    plain.direction = direction;
    QCOMPARE(style.subElementRect(element, &plain, &checkBox), expected);
    if (!isSwitch) {
        QCOMPARE(style.subElementRect(element, &plain, nullptr), expected);
    }
}

void CheckBoxTest::metricsCanBeChanged()
{
    const ChangedStyle style({{QStyle::PM_IndicatorWidth, 20},
                              {QStyle::PM_IndicatorHeight, 10},
                              {QStyle::PM_CheckBoxLabelSpacing, 3}});
    QStyleOptionButton button;
    button.rect = QRect(0, 0, 100, 30);
    QCOMPARE(style.subElementRect(QStyle::SE_CheckBoxIndicator, &button, nullptr),
             QRect(0, 10, 20, 10));
    QCOMPARE(style.subElementRect(QStyle::SE_CheckBoxContents, &button, nullptr),
             QRect(22, 0, 77, 30));
}

void CheckBoxTest::control()
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

void CheckBoxTest::controlIsMirrored()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionButton button = labelOption();
    button.direction = Qt::RightToLeft;
    recorder.picture(QStyle::CE_CheckBox, button, nullptr, button.rect.size());
    QCOMPARE(recorder.call("PE_IndicatorCheckBox").rect, QRect(106, 3, 14, 14));
    QCOMPARE(recorder.call("CE_CheckBoxLabel").rect, QRect(1, 0, 100, 20));
}

void CheckBoxTest::focusIsDrawn()
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

void CheckBoxTest::controlNeedsItsOption()
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

void CheckBoxTest::label_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

void CheckBoxTest::label()
{
    QFETCH(Qt::LayoutDirection, direction);
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionButton button = labelOption();
    button.direction = direction;
    // A glyph that fills its box shows where the text is, and its colour.
    button.text = blocks();
    button.palette.setBrush(QPalette::WindowText, QColor(Qt::red));
    const QImage picture =
        recorder.picture(QStyle::CE_CheckBoxLabel, button, nullptr, button.rect.size(), Qt::black);
    QCOMPARE(recorder.elements(), QStringList{text("drawItemText")});
    QCOMPARE(recorder.call("drawItemText").rect, button.rect);
    const int x = direction == Qt::LeftToRight ? 3 : 116;
    QCOMPARE(picture.pixelColor(x, 10), QColor(Qt::red));
    QCOMPARE(picture.pixelColor(119 - x, 10), QColor(Qt::black));
}

void CheckBoxTest::labelWithIcon()
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

void CheckBoxTest::mnemonics()
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

QTEST_MAIN(CheckBoxTest)
#include "CheckBoxTest.moc"
