#include <QtCore/QMetaEnum>
#include <QtTest/QtTest>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QGroupBox>

#include <support/Text.h>
#include <support/geometry/FusionReference.h>
#include <support/geometry/WidgetSamples.h>

using TARN::BaseStyle;

namespace {

constexpr Qt::LayoutDirection bothDirections[] = {Qt::LeftToRight, Qt::RightToLeft};

} // namespace

/// The rectangles of sub-controls.
class SubControlTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void spinBox_data();
    void spinBox();
    void spinBoxWithoutButtons();
    void spinBoxNeedsItsOption();
    void comboBox_data();
    void comboBox();
    void comboBoxOfAnotherOption();
    void comboBoxArrowCanBeChanged();
    void groupBox_data();
    void groupBox();
    void otherControlsAreTheBaseStyles();
    void nothingCrashes();
};

void SubControlTest::spinBox_data()
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

void SubControlTest::spinBox()
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

void SubControlTest::spinBoxWithoutButtons()
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

void SubControlTest::spinBoxNeedsItsOption()
{
    QStyleOptionComplex plain;
    plain.rect = QRect(0, 0, 100, 30);
    compareWithFusion(QStyle::CC_SpinBox, plain, nullptr);
    QStyleOptionSpinBox tooOld;
    tooOld.version = 0;
    tooOld.rect = plain.rect;
    compareWithFusion(QStyle::CC_SpinBox, tooOld, nullptr);
}

void SubControlTest::comboBox_data()
{
    QTest::addColumn<bool>("editable");
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<QRect>("editField");
    QTest::addColumn<QRect>("arrow");
    const auto rect = [](int left, int top, int right, int bottom) {
        return QRect(QPoint(left, top), QPoint(right, bottom));
    };
    const QRect usual(0, 0, 100, 30);
    const QRect low(0, 0, 100, 8);
    QTest::newRow("list") << false << usual << rect(2, 0, 88, 29) << rect(74, 0, 99, 29);
    QTest::newRow("editable") << true << usual << rect(1, 1, 72, 28) << rect(74, 0, 99, 29);
    QTest::newRow("low list") << false << low << rect(2, 0, 88, 7) << rect(92, 0, 99, 7);
    QTest::newRow("low, editable") << true << low << rect(1, 1, 94, 6) << rect(92, 0, 99, 7);
}

void SubControlTest::comboBox()
{
    QFETCH(bool, editable);
    QFETCH(QRect, rect);
    QFETCH(QRect, editField);
    QFETCH(QRect, arrow);
    const BaseStyle style;
    const FusionReference reference;
    QStyleOptionComboBox option;
    option.rect = rect;
    option.editable = editable;
    const QComboBox comboBox;
    const QWidget *widgets[] = {&comboBox, nullptr};
    for (const QWidget *widget : widgets) {
        const auto part = [&](QStyle::SubControl control) {
            return style.subControlRect(QStyle::CC_ComboBox, &option, control, widget);
        };
        for (const Qt::LayoutDirection direction : bothDirections) {
            option.direction = direction;
            QCOMPARE(part(QStyle::SC_ComboBoxEditField), editField);
            QCOMPARE(part(QStyle::SC_ComboBoxArrow), arrow);
            for (const auto other : {QStyle::SC_ComboBoxFrame, QStyle::SC_ComboBoxListBoxPopup}) {
                QCOMPARE(part(other),
                         reference.fusionRect(QStyle::CC_ComboBox, option, other, widget));
            }
        }
    }
}

void SubControlTest::comboBoxOfAnotherOption()
{
    const BaseStyle style;
    QStyleOptionComplex plain;
    plain.rect = QRect(0, 0, 100, 30);
    const auto part = [&](QStyle::SubControl control) {
        return style.subControlRect(QStyle::CC_ComboBox, &plain, control, nullptr);
    };
    QCOMPARE(part(QStyle::SC_ComboBoxEditField), plain.rect);
    QCOMPARE(part(QStyle::SC_ComboBoxArrow), QRect(QPoint(74, 0), QPoint(99, 29)));
}

void SubControlTest::comboBoxArrowCanBeChanged()
{
    const ChangedStyle style({{QStyle::PM_MenuButtonIndicator, 40}});
    QStyleOptionComboBox option;
    option.rect = QRect(0, 0, 100, 30);
    const auto part = [&](QStyle::SubControl control) {
        return style.subControlRect(QStyle::CC_ComboBox, &option, control, nullptr);
    };
    QCOMPARE(part(QStyle::SC_ComboBoxEditField).right(), 60);
    QCOMPARE(part(QStyle::SC_ComboBoxArrow).left(), 64);
}

void SubControlTest::groupBox_data()
{
    QTest::addColumn<bool>("checkable");
    QTest::addColumn<bool>("flat");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    for (const Qt::LayoutDirection direction : bothDirections) {
        const QByteArray suffix = direction == Qt::RightToLeft ? ", mirrored" : "";
        QTest::newRow("plain" + suffix) << false << false << direction;
        QTest::newRow("flat" + suffix) << false << true << direction;
        QTest::newRow("checkable" + suffix) << true << false << direction;
        QTest::newRow("flat and checkable" + suffix) << true << true << direction;
    }
}

void SubControlTest::groupBox()
{
    QFETCH(bool, checkable);
    QFETCH(bool, flat);
    QFETCH(Qt::LayoutDirection, direction);
    const BaseStyle style;
    const FusionReference reference;
    Open<QGroupBox> groupBox(text("Title"));
    groupBox.setCheckable(checkable);
    groupBox.setFlat(flat);
    groupBox.setLayoutDirection(direction);
    groupBox.resize(200, 100);
    QStyleOptionGroupBox option;
    groupBox.initStyleOption(&option);
    for (const auto control : {QStyle::SC_GroupBoxFrame, QStyle::SC_GroupBoxContents,
                               QStyle::SC_GroupBoxCheckBox, QStyle::SC_GroupBoxLabel}) {
        QRect expected = reference.QCommonStyle::subControlRect(QStyle::CC_GroupBox, &option,
                                                                control, &groupBox);
        if (checkable && control == QStyle::SC_GroupBoxLabel) {
            expected =
                QRect(expected.x() + 1, expected.y(), expected.width() + 1, expected.height());
        }
        QCOMPARE(style.subControlRect(QStyle::CC_GroupBox, &option, control, &groupBox), expected);
    }
}

void SubControlTest::otherControlsAreTheBaseStyles()
{
    const auto controls = QMetaEnum::fromType<QStyle::ComplexControl>();
    int compared = 0;
    for (const Qt::LayoutDirection direction : bothDirections) {
        for (const WidgetSample &sample : widgetSamples(direction)) {
            const auto *option =
                qstyleoption_cast<const QStyleOptionComplex *>(sample.option.get());
            for (int index = 0; option && index < controls.keyCount(); ++index) {
                const auto control = QStyle::ComplexControl(controls.value(index));
                if (!FusionReference::isOwn(control)) {
                    compareWithFusion(control, *option, sample.widget.get());
                    compareWithFusion(control, *option, nullptr);
                    ++compared;
                }
            }
        }
    }
    QVERIFY(compared > 50);
    QStyleOptionTitleBar titleBar;
    titleBar.rect = QRect(0, 0, 200, 20);
    titleBar.titleBarFlags = Qt::Window | Qt::WindowSystemMenuHint | Qt::WindowTitleHint |
                             Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint;
    compareWithFusion(QStyle::CC_TitleBar, titleBar, nullptr);
}

void SubControlTest::nothingCrashes()
{
    const BaseStyle style;
    const auto samples = widgetSamples(Qt::LeftToRight);
    const QStyleOptionComplex plain;
    std::vector<const QStyleOptionComplex *> options = {nullptr, &plain};
    for (const WidgetSample &sample : samples) {
        options.push_back(qstyleoption_cast<const QStyleOptionComplex *>(sample.option.get()));
    }
    for (const auto control : {QStyle::CC_SpinBox, QStyle::CC_ComboBox, QStyle::CC_ScrollBar,
                               QStyle::CC_Slider, QStyle::CC_GroupBox}) {
        for (const QStyleOptionComplex *option : options) {
            for (const QStyle::SubControl part : subControlBits) {
                style.subControlRect(control, option, part, nullptr);
                for (const WidgetSample &sample : samples) {
                    style.subControlRect(control, option, part, sample.widget.get());
                }
            }
        }
        QVERIFY(!style.subControlRect(control, nullptr, subControlBits[0], nullptr).isValid());
    }
}

QTEST_MAIN(SubControlTest)
#include "SubControlTest.moc"
