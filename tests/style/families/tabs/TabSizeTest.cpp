#include "style/families/tabs/TabShapes.h"

#include <QtTest/QtTest>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QTabWidget>

#include <support/Text.h>
#include <support/geometry/FusionReference.h>

using TARN::BaseStyle;

namespace {

constexpr auto tabType = QStyle::CT_TabBarTab;
constexpr QSize tabContents(70, 21);

enum class BaseSize { No, Yes };

QStyleOptionTab tabOption(QTabBar::Shape shape, QStyleOptionTab::TabPosition position)
{
    QStyleOptionTab option;
    option.shape = shape;
    option.position = position;
    option.text = text("Tab");
    return option;
}

/// A tab widget with one tab that is measured by the theme's style and by the base style.
class MeasuredTabWidget : public QTabWidget
{
public:
    explicit MeasuredTabWidget(TabPosition position = North)
    {
        setTabPosition(position);
        addTab(new QWidget, text("Tab"));
    }

    QSize ownSize(const QSize &contents = tabContents) const
    {
        return m_style.sizeFromContents(tabType, &m_option, contents, tabBar());
    }

    QSize fusionSize(const QSize &contents = tabContents) const
    {
        return m_reference.fusionSize(tabType, m_option, contents, tabBar());
    }

private:
    BaseStyle m_style;
    FusionReference m_reference;
    QStyleOptionTab m_option = tabOption(QTabBar::RoundedNorth, QStyleOptionTab::OnlyOneTab);
};

void setAll(QObject *object, const QByteArrayList &properties)
{
    for (const QByteArray &property : properties) {
        object->setProperty(property.constData(), true);
    }
}

/// The extents of a bar that its tabs are to fill.
constexpr QSize barSize(600, 480);

/// A stretched tab bar, with or without a parent, of a size that differs from the parent's.
class StretchedBar
{
public:
    StretchedBar(int count, bool hasParent)
    {
        m_bar = hasParent ? new QTabBar(&m_parent) : &m_loneBar;
        m_parent.resize(barSize);
        m_bar->setProperty("stretched", true);
        for (int index = 0; index < count; ++index) {
            m_bar->addTab(text("Tab"));
        }
        m_bar->resize(hasParent ? QSize(1000, 1000) : barSize);
    }

    QTabBar &bar() const { return *m_bar; }

    int extent(const QStyleOptionTab &option) const
    {
        const QSize size = m_style.sizeFromContents(tabType, &option, tabContents, m_bar);
        return isHorizontal(option) ? size.width() : size.height();
    }

    int fusionExtent(const QStyleOptionTab &option) const
    {
        const QSize size = m_reference.fusionSize(tabType, option, tabContents, m_bar);
        return isHorizontal(option) ? size.width() : size.height();
    }

    /// Tells whether the extent across the bar is the base style's.
    bool isAsThick(const QStyleOptionTab &option) const
    {
        const QSize own = m_style.sizeFromContents(tabType, &option, tabContents, m_bar);
        const QSize fusion = m_reference.fusionSize(tabType, option, tabContents, m_bar);
        return isHorizontal(option) ? own.height() == fusion.height()
                                    : own.width() == fusion.width();
    }

private:
    static bool isHorizontal(const QStyleOptionTab &option) { return !isVertical(option.shape); }

    BaseStyle m_style;
    FusionReference m_reference;
    QWidget m_parent;
    QTabBar m_loneBar;
    QTabBar *m_bar = nullptr;
};

} // namespace

Q_DECLARE_METATYPE(BaseSize)

/// The sizes of tabs.
class TabSizeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void heights_data();
    void heights();
    void sideTabsAreWide_data();
    void sideTabsAreWide();
    void tabBarsOfTheirOwnKeepTheirSize();
    void tabWidgetPropertiesDoNotCount();
    void baseHeightIsThatOfTheFirstTab();
    void baseHeightIsOfATabWidgetsTab();
    void heightsHoldForAnyOption();
    void onlyTab_data();
    void onlyTab();
    void severalTabs_data() { onlyTab_data(); }
    void severalTabs();
    void wideTabsStayWide();
    void stretchedBarInATabWidget();
    void otherBarsAreNotStretched();
    void emptyBarDoesNotCrash();
};

void TabSizeTest::cleanup()
{
    for (const char *property : {"appSmallTabSize", "appBaseTabSize", "appLargeTabSize"}) {
        qApp->setProperty(property, QVariant());
    }
}

void TabSizeTest::heights_data()
{
    QTest::addColumn<QByteArrayList>("applicationProperties");
    QTest::addColumn<QByteArrayList>("properties");
    QTest::addColumn<int>("expected");
    QTest::addColumn<BaseSize>("baseSize");
    const QByteArrayList none;
    const QByteArray appSmall = "appSmallTabSize";
    const QByteArray appBase = "appBaseTabSize";
    const QByteArray appLarge = "appLargeTabSize";
    const QByteArray small = "smallTabSize";
    const QByteArray base = "baseTabSize";
    const QByteArray large = "largeTabSize";
    using List = QByteArrayList;
    const auto fixed = BaseSize::No;
    const auto first = BaseSize::Yes;
    QTest::newRow("none") << none << none << 39 << fixed;
    QTest::newRow("app small") << List{appSmall} << none << 16 << fixed;
    QTest::newRow("app base") << List{appBase} << none << 0 << first;
    QTest::newRow("app large") << List{appLarge} << none << 50 << fixed;
    QTest::newRow("app small, base, large")
        << List{appSmall, appBase, appLarge} << none << 16 << fixed;
    QTest::newRow("app small, large") << List{appSmall, appLarge} << none << 16 << fixed;
    QTest::newRow("app base, large") << List{appBase, appLarge} << none << 0 << first;
    QTest::newRow("small") << none << List{small} << 16 << fixed;
    QTest::newRow("base") << none << List{base} << 0 << first;
    QTest::newRow("large") << none << List{large} << 50 << fixed;
    QTest::newRow("small, base") << none << List{small, base} << 16 << fixed;
    QTest::newRow("small, large") << none << List{small, large} << 50 << fixed;
    QTest::newRow("base, large") << none << List{base, large} << 50 << fixed;
    QTest::newRow("small, base, large") << none << List{small, base, large} << 50 << fixed;
    QTest::newRow("app small; base") << List{appSmall} << List{base} << 0 << first;
    QTest::newRow("app large; small") << List{appLarge} << List{small} << 16 << fixed;
    QTest::newRow("app base; large") << List{appBase} << List{large} << 50 << fixed;
    QTest::newRow("app names on the bar") << none << List{appSmall, appLarge} << 39 << fixed;
    QTest::newRow("bar names on the app") << List{small, large} << none << 39 << fixed;
}

void TabSizeTest::heights()
{
    QFETCH(QByteArrayList, applicationProperties);
    QFETCH(QByteArrayList, properties);
    QFETCH(int, expected);
    QFETCH(BaseSize, baseSize);
    setAll(qApp, applicationProperties);
    for (const auto position : {QTabWidget::North, QTabWidget::South}) {
        MeasuredTabWidget tabWidget(position);
        const QSize fusion = tabWidget.fusionSize();
        QVERIFY(fusion.height() != 39);
        setAll(tabWidget.tabBar(), properties);
        QCOMPARE(tabWidget.ownSize(),
                 QSize(fusion.width(), baseSize == BaseSize::Yes ? fusion.height() : expected));
    }
}

void TabSizeTest::sideTabsAreWide_data()
{
    QTest::addColumn<QTabWidget::TabPosition>("position");
    QTest::newRow("west") << QTabWidget::West;
    QTest::newRow("east") << QTabWidget::East;
}

void TabSizeTest::sideTabsAreWide()
{
    QFETCH(QTabWidget::TabPosition, position);
    MeasuredTabWidget tabWidget(position);
    const QSize fusion = tabWidget.fusionSize();
    QCOMPARE(tabWidget.ownSize(), QSize(39, fusion.height()));
    tabWidget.tabBar()->setProperty("largeTabSize", true);
    QCOMPARE(tabWidget.ownSize(), QSize(50, fusion.height()));
    tabWidget.tabBar()->setProperty("largeTabSize", false);
    tabWidget.tabBar()->setProperty("baseTabSize", true);
    // The height that the base style measured is the width of tabs at a side.
    QCOMPARE(tabWidget.ownSize(), QSize(fusion.height(), fusion.height()));
}

void TabSizeTest::tabBarsOfTheirOwnKeepTheirSize()
{
    const BaseStyle style;
    const FusionReference reference;
    QWidget parent;
    QTabBar loneBar;
    QTabBar childBar(&parent);
    const QStyleOptionTab option = tabOption(QTabBar::RoundedNorth, QStyleOptionTab::OnlyOneTab);
    setAll(qApp, {"appLargeTabSize"});
    for (QTabBar *bar : {&loneBar, &childBar}) {
        setAll(bar, {"smallTabSize", "largeTabSize"});
        QCOMPARE(style.sizeFromContents(tabType, &option, tabContents, bar),
                 reference.fusionSize(tabType, option, tabContents, bar));
    }
    QCOMPARE(style.sizeFromContents(tabType, &option, tabContents, nullptr),
             reference.fusionSize(tabType, option, tabContents, nullptr));
}

void TabSizeTest::tabWidgetPropertiesDoNotCount()
{
    MeasuredTabWidget tabWidget;
    setAll(&tabWidget, {"smallTabSize", "largeTabSize"});
    QCOMPARE(tabWidget.ownSize().height(), 39);
}

void TabSizeTest::baseHeightIsThatOfTheFirstTab()
{
    MeasuredTabWidget first;
    const int height = first.fusionSize(QSize(70, 47)).height();
    QCOMPARE(first.ownSize(QSize(70, 47)).height(), 39);

    MeasuredTabWidget second;
    second.tabBar()->setProperty("baseTabSize", true);
    QVERIFY(second.fusionSize(QSize(70, 11)).height() != height);
    QCOMPARE(second.ownSize(QSize(70, 11)).height(), height);
    qApp->setProperty("appBaseTabSize", true);
    QCOMPARE(first.ownSize(QSize(70, 11)).height(), height);
}

void TabSizeTest::baseHeightIsOfATabWidgetsTab()
{
    const BaseStyle style;
    const QTabBar loneBar;
    const QStyleOptionTab option = tabOption(QTabBar::RoundedNorth, QStyleOptionTab::OnlyOneTab);
    style.sizeFromContents(tabType, &option, QSize(70, 47), &loneBar);
    MeasuredTabWidget tabWidget;
    tabWidget.tabBar()->setProperty("baseTabSize", true);
    QCOMPARE(tabWidget.ownSize(), tabWidget.fusionSize());
}

void TabSizeTest::heightsHoldForAnyOption()
{
    const BaseStyle style;
    const MeasuredTabWidget tabWidget;
    const QStyleOption plain;
    QCOMPARE(style.sizeFromContents(tabType, &plain, tabContents, tabWidget.tabBar()).height(), 39);
    QStyleOptionTab tooOld = tabOption(QTabBar::RoundedNorth, QStyleOptionTab::OnlyOneTab);
    tooOld.version = 1;
    QCOMPARE(style.sizeFromContents(tabType, &tooOld, tabContents, tabWidget.tabBar()).height(),
             39);
}

void TabSizeTest::onlyTab_data()
{
    QTest::addColumn<QTabBar::Shape>("shape");
    QTest::addColumn<int>("total");
    QTest::addColumn<bool>("hasParent");
    for (const bool hasParent : {true, false}) {
        const QByteArray suffix = hasParent ? " in a parent" : " alone";
        for (const QTabBar::Shape shape : allShapes) {
            const QByteArray name = isVertical(shape) ? "vertical " : "horizontal ";
            QTest::newRow(name + QByteArray::number(shape) + suffix)
                << shape << (isVertical(shape) ? 480 : 600) << hasParent;
        }
    }
}

void TabSizeTest::onlyTab()
{
    QFETCH(QTabBar::Shape, shape);
    QFETCH(int, total);
    QFETCH(bool, hasParent);
    const StretchedBar stretched(1, hasParent);
    for (const auto position : {QStyleOptionTab::OnlyOneTab, QStyleOptionTab::End}) {
        const QStyleOptionTab option = tabOption(shape, position);
        stretched.bar().setUsesScrollButtons(false);
        QCOMPARE(stretched.extent(option), total - 4);
        QVERIFY(stretched.isAsThick(option));
        stretched.bar().setUsesScrollButtons(true);
        QCOMPARE(stretched.extent(option), total);
    }
    const QStyleOptionTab beginning = tabOption(shape, QStyleOptionTab::Beginning);
    QCOMPARE(stretched.extent(beginning), total);
}

void TabSizeTest::severalTabs()
{
    QFETCH(QTabBar::Shape, shape);
    QFETCH(int, total);
    QFETCH(bool, hasParent);
    for (const int count : {2, 3, 4}) {
        const StretchedBar stretched(count, hasParent);
        for (const bool scrolls : {false, true}) {
            stretched.bar().setUsesScrollButtons(scrolls);
            for (const auto position : {QStyleOptionTab::Beginning, QStyleOptionTab::Middle}) {
                const QStyleOptionTab option = tabOption(shape, position);
                QVERIFY(stretched.fusionExtent(option) < total / count);
                QCOMPARE(stretched.extent(option), total / count);
                QVERIFY(stretched.isAsThick(option));
            }
            for (const auto position : {QStyleOptionTab::End, QStyleOptionTab::OnlyOneTab}) {
                const QStyleOptionTab option = tabOption(shape, position);
                QCOMPARE(stretched.extent(option), stretched.fusionExtent(option));
            }
        }
    }
}

void TabSizeTest::wideTabsStayWide()
{
    const int count = 20;
    const StretchedBar stretched(count, true);
    const QStyleOptionTab option = tabOption(QTabBar::RoundedNorth, QStyleOptionTab::Beginning);
    QVERIFY(stretched.fusionExtent(option) > 600 / count);
    QCOMPARE(stretched.extent(option), stretched.fusionExtent(option));
}

void TabSizeTest::stretchedBarInATabWidget()
{
    MeasuredTabWidget tabWidget;
    tabWidget.resize(500, 400);
    tabWidget.tabBar()->setProperty("stretched", true);
    tabWidget.tabBar()->setUsesScrollButtons(false);
    QCOMPARE(tabWidget.ownSize(), QSize(496, 39));
}

void TabSizeTest::otherBarsAreNotStretched()
{
    const BaseStyle style;
    const FusionReference reference;
    const StretchedBar stretched(1, true);
    QStyleOptionTab option = tabOption(QTabBar::RoundedNorth, QStyleOptionTab::OnlyOneTab);
    stretched.bar().setProperty("stretched", false);
    QCOMPARE(stretched.extent(option), stretched.fusionExtent(option));
    stretched.bar().setProperty("stretched", true);
    QVERIFY(stretched.extent(option) > stretched.fusionExtent(option));
    option.version = 2;
    QCOMPARE(stretched.extent(option), stretched.fusionExtent(option));
    const QStyleOption plain;
    QCOMPARE(style.sizeFromContents(tabType, &plain, tabContents, &stretched.bar()),
             reference.fusionSize(tabType, plain, tabContents, &stretched.bar()));

    // What is not a tab bar has no tabs to stretch.
    QWidget other;
    other.resize(barSize);
    other.setProperty("stretched", true);
    option.version = QStyleOptionTab::Version;
    QCOMPARE(style.sizeFromContents(tabType, &option, tabContents, &other),
             reference.fusionSize(tabType, option, tabContents, &other));
}

void TabSizeTest::emptyBarDoesNotCrash()
{
    const StretchedBar stretched(0, true);
    for (const auto position : {QStyleOptionTab::Beginning, QStyleOptionTab::Middle}) {
        const QStyleOptionTab option = tabOption(QTabBar::RoundedNorth, position);
        QVERIFY(stretched.extent(option) >= stretched.fusionExtent(option));
    }
}

QTEST_MAIN(TabSizeTest)
#include "TabSizeTest.moc"
