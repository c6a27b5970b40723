#include "style/families/SpinBoxSample.h"

#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QSpinBox>

#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/painting/OddRectangles.h>
#include <support/themes/PaintTheme.h>

namespace {

const QPoint inField(30, 13);
const QPoint onTop(30, 0);
// Corners of the buttons' faces that no arrow reaches.
const QPoint inUpFace(66, 2);
const QPoint inDownFace(66, 23);
constexpr QColor ground(1, 2, 3);

/// Returns the ground on which signs are painted.
QImage signGround()
{
    QImage picture(30, 30, QImage::Format_RGB32);
    picture.fill(ground);
    return picture;
}

/// A further style whose arrows are far too large.
class LargeArrows : public QProxyStyle
{
public:
    LargeArrows()
        : QProxyStyle(new TARN::BaseStyle)
    {
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override
    {
        if (element == PE_IndicatorSpinUp) {
            painter->fillRect(QRect(-500, -500, 1000, 1000), Qt::red);
        } else if (element != PE_IndicatorSpinDown) {
            QProxyStyle::drawPrimitive(element, option, painter, widget);
        }
    }
};

} // namespace

Q_DECLARE_METATYPE(QStyle::State)

/// Spin boxes, and the signs of their buttons.
class SpinBoxPaintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void field_data();
    void field();
    void errorIsOutlined();
    void framelessFieldReachesTheEdges();
    void usedButtonHasAFace_data();
    void usedButtonHasAFace();
    void onlyTheActiveButtonIsUsed();
    void faceKeepsToTheInside();
    void indicatorsKeepToTheirButtons();
    void rightToLeftIsTheMirrorImage();
    void needsItsOption();
    void minus_data();
    void minus();
    void plus_data();
    void plus();
    void translucentPlusIsEven();
    void anyRectangle_data();
    void anyRectangle();
};

void SpinBoxPaintTest::field_data()
{
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<QString>("border");
    QTest::addColumn<QString>("background");
    const QStyle::State enabled = QStyle::State_Enabled;
    const QString background = text("InputUncheckedBackgroundBrush");
    QTest::newRow("at rest") << enabled << text("InputBorderBrush") << background;
    QTest::newRow("hovered") << (enabled | QStyle::State_MouseOver) << text("InputBorderBrush")
                             << background;
    QTest::newRow("focus") << (enabled | QStyle::State_HasFocus) << text("MainColor") << background;
    QTest::newRow("disabled") << QStyle::State(QStyle::State_None)
                              << text("InputBorderBrushDisabled")
                              << text("InputUncheckedBackgroundBrushDisabled");
}

void SpinBoxPaintTest::field()
{
    QFETCH(QStyle::State, state);
    QFETCH(QString, border);
    QFETCH(QString, background);
    const PaintTheme theme;
    CallRecorder recorder;
    const QSpinBox spinBox;
    for (const QWidget *widget :
         {static_cast<const QWidget *>(&spinBox), static_cast<const QWidget *>(nullptr)}) {
        const QImage picture =
            recorder.picture(QStyle::CC_SpinBox, spinBoxOption(state), widget, sampleSize);
        for (const QPoint &pixel : {onTop, QPoint(0, 0), QPoint(79, 0), QPoint(79, 25)}) {
            QCOMPARE(theme.nameAt(picture, pixel), border);
        }
        QCOMPARE(theme.nameAt(picture, inField), background);
        QCOMPARE(theme.nameAt(picture, inUpFace), background);
    }
}

void SpinBoxPaintTest::errorIsOutlined()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QSpinBox spinBox;
    spinBox.setProperty("drawErrorIndicator", true);
    const QImage picture = recorder.picture(
        QStyle::CC_SpinBox, spinBoxOption(QStyle::State_Enabled | QStyle::State_HasFocus), &spinBox,
        sampleSize);
    QCOMPARE(theme.nameAt(picture, onTop), text("StatusDangerColor"));
}

void SpinBoxPaintTest::framelessFieldReachesTheEdges()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionSpinBox option = spinBoxOption(QStyle::State_Enabled | QStyle::State_HasFocus);
    option.frame = false;
    const QImage picture =
        recorder.picture(QStyle::CC_SpinBox, option, nullptr, sampleSize, ground);
    for (const QPoint &pixel : {onTop, QPoint(0, 0), QPoint(79, 25)}) {
        QCOMPARE(theme.nameAt(picture, pixel), text("InputUncheckedBackgroundBrush"));
    }
}

void SpinBoxPaintTest::usedButtonHasAFace_data()
{
    QTest::addColumn<QStyle::SubControl>("button");
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<QString>("background");
    QTest::addColumn<QString>("foreground");
    const QStyle::State hovered = QStyle::State_Enabled | QStyle::State_MouseOver;
    const QStyle::State pressed = hovered | QStyle::State_Sunken;
    for (const auto button : {QStyle::SC_SpinBoxUp, QStyle::SC_SpinBoxDown}) {
        const char *name = button == QStyle::SC_SpinBoxUp ? "up" : "down";
        QTest::addRow("%s, hovered", name)
            << button << hovered << text("ButtonUncheckedHoverBackgroundBrush")
            << text("ButtonUncheckedHoverForegroundBrush");
        QTest::addRow("%s, pressed", name)
            << button << pressed << text("ButtonUncheckedPressedBackgroundBrush")
            << text("ButtonUncheckedPressedForegroundBrush");
    }
}

void SpinBoxPaintTest::usedButtonHasAFace()
{
    QFETCH(QStyle::SubControl, button);
    QFETCH(QStyle::State, state);
    QFETCH(QString, background);
    QFETCH(QString, foreground);
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionSpinBox option = spinBoxOption(state);
    option.activeSubControls = button;
    const QImage picture = recorder.picture(QStyle::CC_SpinBox, option, nullptr, sampleSize);
    const bool isUp = button == QStyle::SC_SpinBoxUp;
    QCOMPARE(theme.nameAt(picture, isUp ? inUpFace : inDownFace), background);
    QVERIFY(theme.shows(picture.copy(isUp ? upButton : downButton), foreground));
    const QImage other = picture.copy(isUp ? downButton : upButton);
    QVERIFY(!theme.shows(other, background));
    QVERIFY(!theme.shows(other, foreground));
}

void SpinBoxPaintTest::onlyTheActiveButtonIsUsed()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionSpinBox option = spinBoxOption(QStyle::State_Enabled | QStyle::State_MouseOver |
                                               QStyle::State_Sunken | QStyle::State_On);
    option.activeSubControls = QStyle::SC_SpinBoxEditField;
    const QImage picture = recorder.picture(QStyle::CC_SpinBox, option, nullptr, sampleSize);
    QCOMPARE(theme.nameAt(picture, inUpFace), text("InputUncheckedBackgroundBrush"));
    QCOMPARE(theme.nameAt(picture, inDownFace), text("InputUncheckedBackgroundBrush"));
    for (const PaintCall &call : recorder.calls()) {
        QCOMPARE(call.state, QStyle::State(QStyle::State_Enabled));
    }
}

void SpinBoxPaintTest::faceKeepsToTheInside()
{
    const PaintTheme theme(PaintTheme::Radii{1, 5, 1, 1});
    CallRecorder recorder;
    QStyleOptionSpinBox option = spinBoxOption(QStyle::State_Enabled | QStyle::State_MouseOver);
    const QImage atRest = recorder.picture(QStyle::CC_SpinBox, option, nullptr, sampleSize, ground);
    option.activeSubControls = QStyle::SC_SpinBoxUp;
    const QImage hovered =
        recorder.picture(QStyle::CC_SpinBox, option, nullptr, sampleSize, ground);
    // Where the outline is, round corner included, nothing has changed.
    for (int x = 0; x < sampleSize.width(); ++x) {
        QCOMPARE(hovered.pixelColor(x, 0), atRest.pixelColor(x, 0));
    }
    for (int y = 0; y < sampleSize.height(); ++y) {
        QCOMPARE(hovered.pixelColor(79, y), atRest.pixelColor(79, y));
    }
    QCOMPARE(theme.nameAt(hovered, inUpFace), text("ButtonUncheckedHoverBackgroundBrush"));
    QVERIFY(theme.nameAt(hovered, {78, 1}) != text("ButtonUncheckedHoverBackgroundBrush"));
}

void SpinBoxPaintTest::indicatorsKeepToTheirButtons()
{
    const PaintTheme theme;
    const LargeArrows style;
    const QStyleOptionSpinBox option = spinBoxOption();
    QImage picture(option.rect.size(), QImage::Format_RGB32);
    picture.fill(Qt::black);
    QPainter painter(&picture);
    style.drawComplexControl(QStyle::CC_SpinBox, &option, &painter, nullptr);
    QVERIFY(!painter.hasClipping());
    painter.end();
    const QRect button =
        style.subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, nullptr);
    QVERIFY(button.isValid());
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            QCOMPARE(picture.pixelColor(x, y) == QColor(Qt::red), button.contains(x, y));
        }
    }
}

void SpinBoxPaintTest::rightToLeftIsTheMirrorImage()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionSpinBox option = spinBoxOption(QStyle::State_Enabled | QStyle::State_MouseOver);
    option.buttonSymbols = QAbstractSpinBox::PlusMinus;
    option.activeSubControls = QStyle::SC_SpinBoxUp;
    const QImage picture = recorder.picture(QStyle::CC_SpinBox, option, nullptr, sampleSize);
    option.direction = Qt::RightToLeft;
    const QImage mirrored = recorder.picture(QStyle::CC_SpinBox, option, nullptr, sampleSize);
    QVERIFY(picture != mirrored);
    QCOMPARE(mirrored, picture.mirrored(true, false));
}

void SpinBoxPaintTest::needsItsOption()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionComplex option;
    option.rect = QRect(QPoint(), sampleSize);
    option.state = QStyle::State_Enabled;
    const QImage picture = recorder.picture(QStyle::CC_SpinBox, option, nullptr, sampleSize);
    QVERIFY(theme.namesIn(picture).isEmpty());
    QVERIFY(recorder.calls().empty());
}

void SpinBoxPaintTest::minus_data()
{
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<QRect>("bar");
    // The frame is one pixel wide, so the bar keeps two away.
    QTest::newRow("even") << QRect(4, 3, 12, 12) << QRect(6, 8, 8, 2);
    QTest::newRow("odd") << QRect(4, 3, 11, 11) << QRect(6, 8, 7, 1);
    QTest::newRow("large") << QRect(0, 0, 24, 24) << QRect(2, 10, 20, 4);
    QTest::newRow("wide") << QRect(0, 0, 20, 12) << QRect(2, 5, 16, 2);
}

void SpinBoxPaintTest::minus()
{
    QFETCH(QRect, rect);
    QFETCH(QRect, bar);
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOption option;
    option.rect = rect;
    option.palette.setBrush(QPalette::ButtonText, QColor(Qt::red));
    const QImage picture =
        recorder.picture(QStyle::PE_IndicatorSpinMinus, option, nullptr, {30, 30}, ground);
    QImage expected = signGround();
    QPainter(&expected).fillRect(bar, Qt::red);
    QCOMPARE(picture, expected);
}

void SpinBoxPaintTest::plus_data()
{
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<QRect>("horizontal");
    QTest::addColumn<QRect>("vertical");
    QTest::newRow("even") << QRect(4, 3, 12, 12) << QRect(6, 8, 8, 2) << QRect(9, 5, 2, 8);
    QTest::newRow("odd") << QRect(4, 3, 11, 11) << QRect(6, 8, 7, 1) << QRect(9, 5, 1, 7);
    QTest::newRow("wide") << QRect(0, 0, 20, 12) << QRect(2, 5, 16, 2) << QRect(9, 2, 2, 8);
}

void SpinBoxPaintTest::plus()
{
    QFETCH(QRect, rect);
    QFETCH(QRect, horizontal);
    QFETCH(QRect, vertical);
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOption option;
    option.rect = rect;
    option.palette.setBrush(QPalette::ButtonText, QColor(Qt::red));
    const QImage picture =
        recorder.picture(QStyle::PE_IndicatorSpinPlus, option, nullptr, {30, 30}, ground);
    QImage expected = signGround();
    QPainter painter(&expected);
    painter.fillRect(horizontal, Qt::red);
    painter.fillRect(vertical, Qt::red);
    painter.end();
    QCOMPARE(picture, expected);
}

void SpinBoxPaintTest::translucentPlusIsEven()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOption option;
    option.rect = QRect(0, 0, 12, 12);
    option.palette.setBrush(QPalette::ButtonText, QColor(255, 0, 0, 100));
    const QImage picture =
        recorder.picture(QStyle::PE_IndicatorSpinPlus, option, nullptr, {12, 12}, ground);
    QVERIFY(picture.pixelColor(2, 5) != ground);
    QCOMPARE(picture.pixelColor(5, 5), picture.pixelColor(2, 5));
    QCOMPARE(picture.pixelColor(5, 2), picture.pixelColor(2, 5));
}

void SpinBoxPaintTest::anyRectangle_data()
{
    addOddRectangles();
    QTest::newRow("narrow") << QRect(5, 5, 10, 20);
}

void SpinBoxPaintTest::anyRectangle()
{
    QFETCH(QRect, rect);
    const PaintTheme theme(PaintTheme::Radii{1, 4, 6, 8});
    for (const auto symbols : {QAbstractSpinBox::UpDownArrows, QAbstractSpinBox::PlusMinus}) {
        CallRecorder recorder;
        QStyleOptionSpinBox option = spinBoxOption(QStyle::State_Enabled | QStyle::State_MouseOver);
        option.rect = rect;
        option.buttonSymbols = symbols;
        option.activeSubControls = QStyle::SC_SpinBoxUp;
        const QImage picture =
            recorder.picture(QStyle::CC_SpinBox, option, nullptr, sampleSize, ground);
        QCOMPARE(picture.pixelColor(0, 0) == ground, !rect.isValid() || !rect.contains(0, 0));
        for (const auto sign : {QStyle::PE_IndicatorSpinMinus, QStyle::PE_IndicatorSpinPlus}) {
            QStyleOption signOption;
            signOption.rect = rect;
            const QImage bars = recorder.picture(sign, signOption, nullptr, sampleSize, ground);
            QVERIFY(bars.pixelColor(0, 0) == ground || (rect.isValid() && rect.contains(0, 0)));
        }
    }
}

QTEST_MAIN(SpinBoxPaintTest)
#include "SpinBoxPaintTest.moc"
