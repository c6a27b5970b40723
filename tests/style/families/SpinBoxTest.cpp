#include "style/families/SpinBoxSample.h"

#include <QtTest/QtTest>

#include <support/Text.h>
#include <support/geometry/FusionReference.h>
#include <support/painting/CallRecorder.h>
#include <support/themes/PaintTheme.h>

using TARN::BaseStyle;

namespace {

QStringList indicators(const CallRecorder &recorder)
{
    return recorder.elements().filter(text("PE_Indicator"));
}

} // namespace

/// The rectangles of spin boxes, and the buttons in them.
class SpinBoxTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parts_data();
    void parts();
    void withoutButtons();
    void needsItsOption();
    void indicatorsReachTheProxy_data();
    void indicatorsReachTheProxy();
    void hiddenButtonIsNotPainted();
    void impossibleStepLooksDisabled();
};

void SpinBoxTest::parts_data()
{
    QTest::addColumn<QStyle::SubControl>("control");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRect>("expected");
    QTest::addColumn<QRect>("expectedMirrored");
    const QSize even(100, 30);
    const QSize odd(81, 31);
    const auto rect = [](int left, int top, int right, int bottom) {
        return QRect(QPoint(left, top), QPoint(right, bottom));
    };
    QTest::newRow("up") << QStyle::SC_SpinBoxUp << even << rect(85, 0, 98, 14)
                        << rect(1, 0, 14, 14);
    QTest::newRow("up, odd") << QStyle::SC_SpinBoxUp << odd << rect(66, 0, 79, 14)
                             << rect(1, 0, 14, 14);
    QTest::newRow("down") << QStyle::SC_SpinBoxDown << even << rect(85, 15, 98, 28)
                          << rect(1, 15, 14, 28);
    QTest::newRow("down, odd") << QStyle::SC_SpinBoxDown << odd << rect(66, 15, 79, 29)
                               << rect(1, 15, 14, 29);
    QTest::newRow("frame") << QStyle::SC_SpinBoxFrame << even << rect(0, 0, 99, 29)
                           << rect(0, 0, 99, 29);
    QTest::newRow("edit field") << QStyle::SC_SpinBoxEditField << even << rect(1, 1, 84, 28)
                                << rect(15, 1, 98, 28);
    QTest::newRow("edit field, odd")
        << QStyle::SC_SpinBoxEditField << odd << rect(1, 1, 65, 29) << rect(15, 1, 79, 29);
}

void SpinBoxTest::parts()
{
    QFETCH(QStyle::SubControl, control);
    QFETCH(QSize, size);
    QFETCH(QRect, expected);
    QFETCH(QRect, expectedMirrored);
    const BaseStyle style;
    QStyleOptionSpinBox option;
    option.rect = QRect(QPoint(), size);
    for (const auto symbols : {QAbstractSpinBox::UpDownArrows, QAbstractSpinBox::PlusMinus}) {
        option.buttonSymbols = symbols;
        option.direction = Qt::LeftToRight;
        QCOMPARE(style.subControlRect(QStyle::CC_SpinBox, &option, control, nullptr), expected);
        option.direction = Qt::RightToLeft;
        QCOMPARE(style.subControlRect(QStyle::CC_SpinBox, &option, control, nullptr),
                 expectedMirrored);
    }
}

void SpinBoxTest::withoutButtons()
{
    const BaseStyle style;
    const FusionReference reference;
    QStyleOptionSpinBox option;
    option.rect = QRect(0, 0, 100, 30);
    option.buttonSymbols = QAbstractSpinBox::NoButtons;
    const auto rect = [&](QStyle::SubControl control) {
        return style.subControlRect(QStyle::CC_SpinBox, &option, control, nullptr);
    };
    for (const Qt::LayoutDirection direction : bothDirections) {
        option.direction = direction;
        for (const auto button : {QStyle::SC_SpinBoxUp, QStyle::SC_SpinBoxDown}) {
            QCOMPARE(rect(button),
                     reference.fusionRect(QStyle::CC_SpinBox, option, button, nullptr));
        }
        QCOMPARE(rect(QStyle::SC_SpinBoxFrame), option.rect);
    }
    option.direction = Qt::LeftToRight;
    QCOMPARE(rect(QStyle::SC_SpinBoxEditField), QRect(QPoint(1, 1), QPoint(100, 28)));
    option.direction = Qt::RightToLeft;
    QCOMPARE(rect(QStyle::SC_SpinBoxEditField), QRect(QPoint(-1, 1), QPoint(98, 28)));
}

void SpinBoxTest::needsItsOption()
{
    QStyleOptionComplex plain;
    plain.rect = QRect(0, 0, 100, 30);
    compareWithFusion(QStyle::CC_SpinBox, plain, nullptr);
    QStyleOptionSpinBox tooOld;
    tooOld.version = 0;
    tooOld.rect = plain.rect;
    compareWithFusion(QStyle::CC_SpinBox, tooOld, nullptr);
}

void SpinBoxTest::indicatorsReachTheProxy_data()
{
    QTest::addColumn<QAbstractSpinBox::ButtonSymbols>("symbols");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("arrows") << QAbstractSpinBox::UpDownArrows
                            << QStringList{text("PE_IndicatorSpinUp"),
                                           text("PE_IndicatorSpinDown")};
    QTest::newRow("signs") << QAbstractSpinBox::PlusMinus
                           << QStringList{text("PE_IndicatorSpinPlus"),
                                          text("PE_IndicatorSpinMinus")};
    QTest::newRow("no buttons") << QAbstractSpinBox::NoButtons << QStringList();
}

void SpinBoxTest::indicatorsReachTheProxy()
{
    QFETCH(QAbstractSpinBox::ButtonSymbols, symbols);
    QFETCH(QStringList, expected);
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionSpinBox option = spinBoxOption();
    option.buttonSymbols = symbols;
    recorder.picture(QStyle::CC_SpinBox, option, nullptr, sampleSize);
    QCOMPARE(indicators(recorder), expected);
    if (expected.isEmpty()) {
        return;
    }
    QVERIFY(upButton.contains(recorder.calls().front().rect));
    QVERIFY(downButton.contains(recorder.calls().back().rect.adjusted(0, 1, 0, 0)));
}

void SpinBoxTest::hiddenButtonIsNotPainted()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionSpinBox option = spinBoxOption();
    option.subControls &= ~QStyle::SC_SpinBoxUp;
    recorder.picture(QStyle::CC_SpinBox, option, nullptr, sampleSize);
    QCOMPARE(indicators(recorder), QStringList{text("PE_IndicatorSpinDown")});
}

void SpinBoxTest::impossibleStepLooksDisabled()
{
    const PaintTheme theme;
    for (const auto symbols : {QAbstractSpinBox::UpDownArrows, QAbstractSpinBox::PlusMinus}) {
        CallRecorder recorder;
        QStyleOptionSpinBox option =
            spinBoxOption(QStyle::State_Enabled | QStyle::State_MouseOver | QStyle::State_Sunken);
        option.buttonSymbols = symbols;
        option.activeSubControls = QStyle::SC_SpinBoxDown;
        option.stepEnabled = QAbstractSpinBox::StepUpEnabled;
        const QImage picture = recorder.picture(QStyle::CC_SpinBox, option, nullptr, sampleSize);
        QCOMPARE(theme.namesIn(picture.copy(upButton.adjusted(0, 1, 0, 0))),
                 QStringList({text("InputUncheckedBackgroundBrush"),
                              text("InputUncheckedForegroundBrush")}));
        // Pressing it does nothing, and so looks like nothing.
        QCOMPARE(theme.namesIn(picture.copy(downButton)),
                 QStringList({text("InputUncheckedBackgroundBrush"),
                              text("InputUncheckedForegroundBrushDisabled")}));
        QVERIFY(recorder.calls().front().state.testFlag(QStyle::State_Enabled));
        QVERIFY(!recorder.calls().back().state.testFlag(QStyle::State_Enabled));
    }
}

QTEST_MAIN(SpinBoxTest)
#include "SpinBoxTest.moc"
