#include <QtTest/QtTest>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolButton>

#include <support/TestedMode.h>
#include <support/Text.h>
#include <support/geometry/FusionReference.h>

using TARN::BaseStyle;

namespace {

using Features = QStyleOptionToolButton::ToolButtonFeatures;

} // namespace

Q_DECLARE_METATYPE(Features)

/// The sizes of push buttons and tool buttons.
class ButtonSizeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { enterTestedMode(); }
    void pushButton();
    void pushButtonIconSizeCanBeChanged();
    void toolButton_data();
    void toolButton();
    void toolButtonHeightsAreEven();
    void toolButtonNeedsItsOption();
};

void ButtonSizeTest::pushButton()
{
    const BaseStyle style;
    const FusionReference reference;
    const QPushButton pushButton;
    const int iconSize = style.pixelMetric(QStyle::PM_ButtonIconSize);
    QVERIFY(iconSize > 4);
    QStyleOptionButton option;
    option.text = text("Caption");
    const QWidget *widgets[] = {&pushButton, nullptr};
    for (const QWidget *widget : widgets) {
        const auto fusion = [&](int height) {
            return reference.fusionSize(QStyle::CT_PushButton, option, QSize(120, height), widget);
        };
        const auto own = [&](int height) {
            return style.sizeFromContents(QStyle::CT_PushButton, &option, QSize(120, height),
                                          widget);
        };
        QVERIFY(fusion(4) != fusion(iconSize));
        QCOMPARE(own(4), fusion(iconSize));
        QCOMPARE(own(iconSize), fusion(iconSize));
        QCOMPARE(own(iconSize + 1), fusion(iconSize + 1));
    }
    const QStyleOption plain;
    QCOMPARE(style.sizeFromContents(QStyle::CT_PushButton, &plain, QSize(20, 4), nullptr),
             reference.fusionSize(QStyle::CT_PushButton, plain, QSize(20, iconSize), nullptr));
}

void ButtonSizeTest::pushButtonIconSizeCanBeChanged()
{
    const ChangedStyle style({{QStyle::PM_ButtonIconSize, 40}});
    QStyleOptionButton option;
    const auto size = [&](int height) {
        return style.sizeFromContents(QStyle::CT_PushButton, &option, QSize(120, height), nullptr);
    };
    QCOMPARE(size(4), size(40));
    QVERIFY(size(41).height() > size(40).height());
}

void ButtonSizeTest::toolButton_data()
{
    QTest::addColumn<Features>("features");
    QTest::addColumn<bool>("noMenuArrow");
    QTest::addColumn<bool>("hasWidget");
    QTest::addColumn<int>("growth");
    const Features none;
    const Features menu = QStyleOptionToolButton::HasMenu;
    const Features arrow = QStyleOptionToolButton::Arrow;
    const Features part = QStyleOptionToolButton::Menu;
    QTest::newRow("no menu") << none << false << true << 0;
    QTest::newRow("menu") << menu << false << true << 12;
    QTest::newRow("menu without arrow") << menu << true << true << 0;
    QTest::newRow("menu without widget") << menu << false << false << 0;
    QTest::newRow("menu and arrow") << (menu | arrow) << false << true << 0;
    QTest::newRow("menu button") << (menu | part) << false << true << 0;
    QTest::newRow("menu button and arrow") << (menu | part | arrow) << false << true << 0;
    QTest::newRow("delayed menu") << (menu | QStyleOptionToolButton::PopupDelay) << false << true
                                  << 12;
    QTest::newRow("arrow") << arrow << false << true << 0;
    QTest::newRow("part for a menu") << part << false << true << 0;
}

void ButtonSizeTest::toolButton()
{
    QFETCH(Features, features);
    QFETCH(bool, noMenuArrow);
    QFETCH(bool, hasWidget);
    QFETCH(int, growth);
    const FusionReference reference;
    QToolButton button;
    button.setProperty("no menu arrow", noMenuArrow);
    const QWidget *widget = hasWidget ? &button : nullptr;
    QStyleOptionToolButton option;
    option.features = features;
    const auto type = QStyle::CT_ToolButton;
    const QSize contents(30, 21);
    const QSize fusion = reference.fusionSize(type, option, contents, widget);
    QCOMPARE(fusion.height() % 2, 0);
    const BaseStyle style;
    QCOMPARE(style.sizeFromContents(type, &option, contents, widget), fusion + QSize(growth, 0));
    const ChangedStyle wider({{QStyle::PM_MenuButtonIndicator, 20}});
    const QSize widerSize = wider.sizeFromContents(type, &option, contents, widget);
    const ChangedStyle narrower({{QStyle::PM_MenuButtonIndicator, 10}});
    const QSize narrowerSize = narrower.sizeFromContents(type, &option, contents, widget);
    if (growth > 0) {
        QCOMPARE(widerSize.width() - narrowerSize.width(), 10);
    }
}

void ButtonSizeTest::toolButtonHeightsAreEven()
{
    const BaseStyle style;
    const FusionReference reference;
    const QToolButton button;
    const QStyleOptionToolButton option;
    const QWidget *widgets[] = {&button, nullptr};
    for (const QWidget *widget : widgets) {
        for (int height = 18; height < 24; ++height) {
            const auto type = QStyle::CT_ToolButton;
            const QSize fusion = reference.fusionSize(type, option, QSize(30, height), widget);
            const QSize size = style.sizeFromContents(type, &option, QSize(30, height), widget);
            QCOMPARE(size.width(), fusion.width());
            QCOMPARE(size.height(), (fusion.height() + 1) / 2 * 2);
        }
    }
}

void ButtonSizeTest::toolButtonNeedsItsOption()
{
    const QToolButton button;
    for (const int height : {20, 21}) {
        const QStyleOption plain;
        compareWithFusion(QStyle::CT_ToolButton, plain, QSize(30, height), &button);
        const QStyleOptionComplex complex;
        compareWithFusion(QStyle::CT_ToolButton, complex, QSize(30, height), &button);
    }
}

QTEST_MAIN(ButtonSizeTest)
#include "ButtonSizeTest.moc"
