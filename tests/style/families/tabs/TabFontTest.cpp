#include <style/BaseStyle.h>

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QTabWidget>

#include <support/NamedWidget.h>
#include <support/Text.h>
#include <support/themes/UniqueTheme.h>

using TARN::BaseStyle;

namespace {

void setProperties(QObject &object, const QString &names)
{
    for (const QString &name : names.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        object.setProperty(name.toLatin1().constData(), true);
    }
}

} // namespace

/// The fonts that tabs get by default when they are polished.
class TabFontTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void tabFont_data();
    void tabFont();
    void tabSizesSetToFalse();
    void propertiesCountWhenPolishedAgain();

private:
    UniqueTheme m_theme;
    BaseStyle m_style;
};

void TabFontTest::init()
{
    for (const char *name : {"appSmallTabSize", "appBaseTabSize", "appLargeTabSize", "smallTabSize",
                             "baseTabSize", "largeTabSize"}) {
        qApp->setProperty(name, QVariant());
    }
}

void TabFontTest::tabFont_data()
{
    QTest::addColumn<QString>("application");
    QTest::addColumn<QString>("widget");
    QTest::addColumn<QString>("expected");
    const char *const sizes[][3] = {
        {"", "", "medium"},
        {"appSmallTabSize", "", "small"},
        {"appBaseTabSize", "", "base"},
        {"appLargeTabSize", "", "large"},
        {"appSmallTabSize appBaseTabSize", "", "small"},
        {"appSmallTabSize appBaseTabSize appLargeTabSize", "", "small"},
        {"appBaseTabSize appLargeTabSize", "", "base"},
        {"", "smallTabSize", "small"},
        {"", "baseTabSize", "base"},
        {"", "largeTabSize", "large"},
        {"", "smallTabSize baseTabSize", "small"},
        {"", "smallTabSize largeTabSize", "large"},
        {"", "baseTabSize largeTabSize", "large"},
        {"", "smallTabSize baseTabSize largeTabSize", "large"},
        {"appLargeTabSize", "smallTabSize", "small"},
        {"appLargeTabSize", "baseTabSize", "base"},
        {"appSmallTabSize", "largeTabSize", "large"},
        {"smallTabSize largeTabSize", "appSmallTabSize appLargeTabSize", "medium"},
    };
    for (const auto &row : sizes) {
        QTest::addRow("application: %s, widget: %s", row[0], row[1])
            << text(row[0]) << text(row[1]) << text(row[2]);
    }
}

void TabFontTest::tabFont()
{
    QFETCH(QString, application);
    QFETCH(QString, widget);
    QFETCH(QString, expected);
    setProperties(*qApp, application);
    QTabWidget tabWidget;
    QTabBar tabBar;
    NamedWidget likeTabBar("QTabWidget");
    for (QWidget *tabs : {static_cast<QWidget *>(&tabWidget), static_cast<QWidget *>(&tabBar),
                          static_cast<QWidget *>(&likeTabBar)}) {
        setProperties(*tabs, widget);
        m_style.polish(tabs);
        QCOMPARE(UniqueTheme::sizeOf(tabs->font()), expected);
        const QVariant font = tabs->property("_q_styleSheetWidgetFont");
        QCOMPARE(font.userType(), int(QMetaType::QFont));
        QCOMPARE(UniqueTheme::sizeOf(font.value<QFont>()), expected);
    }
}

void TabFontTest::tabSizesSetToFalse()
{
    qApp->setProperty("appSmallTabSize", false);
    qApp->setProperty("appLargeTabSize", true);
    QTabBar tabBar;
    tabBar.setProperty("smallTabSize", false);
    m_style.polish(&tabBar);
    QCOMPARE(UniqueTheme::sizeOf(tabBar.font()), text("large"));
}

void TabFontTest::propertiesCountWhenPolishedAgain()
{
    QTabBar tabBar;
    m_style.polish(&tabBar);
    tabBar.setProperty("smallTabSize", true);
    QCOMPARE(UniqueTheme::sizeOf(tabBar.font()), text("medium"));
    m_style.polish(&tabBar);
    QCOMPARE(UniqueTheme::sizeOf(tabBar.font()), text("small"));
}

QTEST_MAIN(TabFontTest)
#include "TabFontTest.moc"
