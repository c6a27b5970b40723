#include "style/families/tabs/TabShapes.h"

#include <style/BaseStyle.h>

#include <QtCore/QMetaEnum>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QTabWidget>

#include <support/NamedWidget.h>
#include <support/Text.h>
#include <support/geometry/FusionReference.h>
#include <support/geometry/WidgetSamples.h>
#include <support/themes/UniqueTheme.h>

using TARN::BaseStyle;

namespace {

void addRowPerShape()
{
    QTest::addColumn<QTabBar::Shape>("shape");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    const auto names = QMetaEnum::fromType<QTabBar::Shape>();
    for (const QTabBar::Shape shape : allShapes) {
        const QByteArray name = names.valueToKey(shape);
        QTest::newRow(name.constData()) << shape << Qt::LeftToRight;
        QTest::newRow((name + ", right to left").constData()) << shape << Qt::RightToLeft;
    }
}

QStyleOptionTab tabOption(QTabBar::Shape shape, Qt::LayoutDirection direction)
{
    QStyleOptionTab option;
    option.rect = QRect(20, 30, 140, 110);
    option.direction = direction;
    option.shape = shape;
    option.text = text("Tab");
    option.rightButtonSize = QSize(16, 16);
    option.leftButtonSize = QSize(10, 10);
    option.state = QStyle::State_Enabled;
    return option;
}

} // namespace

Q_DECLARE_METATYPE(QTabBar::Shape)

/// The rectangles of tabs and of what is in them, and the fonts that they are given.
class TabTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void tabWidgetTabBar_data() { addRowPerShape(); }
    void tabWidgetTabBar();
    void tabWidgetTabBarNeedsItsOption();
    void tabRightButton_data() { addRowPerShape(); }
    void tabRightButton();
    void tabRightButtonNeedsItsOption();
    void tabText_data() { addRowPerShape(); }
    void tabText();
    void tabTextOfAnotherOption();

private:
    UniqueTheme m_theme;
    BaseStyle m_style;
};

void TabTest::tabWidgetTabBar()
{
    QFETCH(QTabBar::Shape, shape);
    QFETCH(Qt::LayoutDirection, direction);
    const BaseStyle style;
    const FusionReference reference;
    Open<QTabWidget> tabWidget;
    tabWidget.resize(400, 300);
    QStyleOptionTabWidgetFrame option;
    tabWidget.initStyleOption(&option);
    option.shape = shape;
    option.direction = direction;
    option.tabBarSize = QSize(60, 40);
    const auto element = QStyle::SE_TabWidgetTabBar;
    const QRect fusion = reference.fusionRect(element, option, &tabWidget);
    QCOMPARE(style.subElementRect(element, &option, &tabWidget), fusion);
    QCOMPARE(style.subElementRect(element, &option, nullptr),
             reference.fusionRect(element, option, nullptr));

    tabWidget.setProperty("stretched", true);
    QRect stretched = fusion;
    if (isVertical(shape)) {
        stretched.setHeight(300);
    } else {
        stretched.setWidth(400);
    }
    QVERIFY(stretched != fusion);
    QCOMPARE(style.subElementRect(element, &option, &tabWidget), stretched);

    tabWidget.setProperty("stretched", false);
    QCOMPARE(style.subElementRect(element, &option, &tabWidget), fusion);
}

void TabTest::tabWidgetTabBarNeedsItsOption()
{
    const BaseStyle style;
    const FusionReference reference;
    QTabWidget tabWidget;
    tabWidget.resize(400, 300);
    tabWidget.setProperty("stretched", true);
    QStyleOptionTabWidgetFrame tooOld;
    tooOld.version = 1;
    tooOld.rect = tabWidget.rect();
    tooOld.tabBarSize = QSize(60, 40);
    const auto element = QStyle::SE_TabWidgetTabBar;
    QCOMPARE(style.subElementRect(element, &tooOld, &tabWidget),
             reference.fusionRect(element, tooOld, &tabWidget));
    QStyleOption plain;
    plain.rect = tabWidget.rect();
    QCOMPARE(style.subElementRect(element, &plain, &tabWidget),
             reference.fusionRect(element, plain, &tabWidget));
}

void TabTest::tabRightButton()
{
    QFETCH(QTabBar::Shape, shape);
    QFETCH(Qt::LayoutDirection, direction);
    const BaseStyle style;
    const FusionReference reference;
    const QStyleOptionTab option = tabOption(shape, direction);
    const QTabBar tabBar;
    const auto element = QStyle::SE_TabBarTabRightButton;
    const QRect fusion = reference.fusionRect(element, option, &tabBar);
    // The tab reaches from (20, 30) to (159, 139).
    QRect expected = fusion;
    if (shape == QTabBar::RoundedNorth || shape == QTabBar::RoundedSouth) {
        expected.moveLeft(157 - 15);
    } else if (shape == QTabBar::RoundedWest) {
        expected.moveTop(32);
    } else if (shape == QTabBar::RoundedEast) {
        expected.moveTop(137 - 15);
    }
    QCOMPARE(fusion.size(), QSize(16, 16));
    QCOMPARE(style.subElementRect(element, &option, &tabBar), expected);
    QCOMPARE(style.subElementRect(element, &option, nullptr), expected);
}

void TabTest::tabRightButtonNeedsItsOption()
{
    const BaseStyle style;
    const FusionReference reference;
    const QTabBar tabBar;
    QStyleOptionTab tooOld = tabOption(QTabBar::RoundedNorth, Qt::LeftToRight);
    tooOld.version = 2;
    const auto element = QStyle::SE_TabBarTabRightButton;
    QCOMPARE(style.subElementRect(element, &tooOld, &tabBar),
             reference.fusionRect(element, tooOld, &tabBar));
    QStyleOption plain;
    plain.rect = tooOld.rect;
    QCOMPARE(style.subElementRect(element, &plain, &tabBar),
             reference.fusionRect(element, plain, &tabBar));
}

void TabTest::tabText()
{
    QFETCH(QTabBar::Shape, shape);
    QFETCH(Qt::LayoutDirection, direction);
    const BaseStyle style;
    const FusionReference reference;
    QStyleOptionTab option = tabOption(shape, direction);
    QTabBar tabBar;
    const auto element = QStyle::SE_TabBarTabText;
    const auto rect = [&] { return style.subElementRect(element, &option, &tabBar); };
    const QRect resting = reference.QCommonStyle::subElementRect(element, &option, &tabBar);
    QCOMPARE(rect(), resting);
    option.state |= QStyle::State_MouseOver;
    QCOMPARE(rect(), reference.QCommonStyle::subElementRect(element, &option, &tabBar));

    option.state |= QStyle::State_Selected;
    const QRect selected = reference.QCommonStyle::subElementRect(element, &option, &tabBar);
    const QRect bold = isEast(shape)   ? selected.adjusted(0, 0, 0, 2)
                       : isWest(shape) ? selected.adjusted(0, -2, 0, 0)
                                       : selected.adjusted(0, 0, 2, 0);
    QCOMPARE(rect(), bold);
    QCOMPARE(style.subElementRect(element, &option, nullptr),
             bold.translated(
                 reference.QCommonStyle::subElementRect(element, &option, nullptr).topLeft() -
                 selected.topLeft()));
    option.state &= ~QStyle::State_Enabled;
    QCOMPARE(rect(), bold);

    tabBar.setProperty("currentTabHighlighted", true);
    QCOMPARE(rect(), selected);
    tabBar.setProperty("currentTabHighlighted", false);
    QCOMPARE(rect(), bold);
    qApp->setProperty("appCurrentTabHighlighted", true);
    QCOMPARE(rect(), selected);
    qApp->setProperty("appCurrentTabHighlighted", false);
    QCOMPARE(rect(), bold);
}

void TabTest::tabTextOfAnotherOption()
{
    const BaseStyle style;
    const FusionReference reference;
    const QTabBar tabBar;
    QStyleOption plain;
    plain.rect = QRect(20, 30, 140, 110);
    plain.state = QStyle::State_Selected;
    const auto element = QStyle::SE_TabBarTabText;
    QCOMPARE(style.subElementRect(element, &plain, &tabBar),
             reference.QCommonStyle::subElementRect(element, &plain, &tabBar));
}

QTEST_MAIN(TabTest)
#include "TabTest.moc"
