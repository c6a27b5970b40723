#include <style/BaseStyle.h>
#include <theme/BaseTheme.h>

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyleFactory>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>

#include <support/Text.h>

using TARN::BaseStyle;
using TARN::BaseTheme;

namespace {

void apply(const char *name)
{
    BaseTheme(text(MOX_SHIPPED_THEMES) + QLatin1Char('/') + text(name)).customize(qApp);
}

void leave()
{
    QApplication::setStyle(QStyleFactory::create(text("fusion")));
}

} // namespace

/// What an application gets that asks for complete theming, and what it keeps.
class CompleteModeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qApp->setProperty("appCompleteTheming", true); }

    void noStyleSheetIsInstalled()
    {
        apply("Dark");
        QCOMPARE(qApp->styleSheet(), QString());
        QVERIFY(qobject_cast<BaseStyle *>(QApplication::style()));
    }

    void theProgramsStyleSheetStays()
    {
        const QString sheet = text("QLabel { color: red; }");
        qApp->setStyleSheet(sheet);
        apply("Dark");
        QCOMPARE(qApp->styleSheet(), sheet);
        apply("Light");
        QCOMPARE(qApp->styleSheet(), sheet);
    }

    void theModeIsThatOfTheNextTheme()
    {
        qApp->setProperty("appCompleteTheming", QVariant());
        apply("Dark");
        QVERIFY(!qApp->styleSheet().isEmpty());
        qApp->setProperty("appCompleteTheming", true);
        QVERIFY(!qApp->styleSheet().isEmpty());
        apply("Light");
        QCOMPARE(qApp->styleSheet(), QString());
        qApp->setProperty("appCompleteTheming", false);
        apply("Dark");
        QVERIFY(!qApp->styleSheet().isEmpty());
    }

    void aStyleSheetThatTookThePlaceOfTheThemesStays()
    {
        qApp->setProperty("appCompleteTheming", QVariant());
        apply("Dark");
        const QString sheet = text("QLabel { color: red; }");
        qApp->setStyleSheet(sheet);
        qApp->setProperty("appCompleteTheming", true);
        apply("Light");
        QCOMPARE(qApp->styleSheet(), sheet);
    }

    void stylesOfTheProgramHaveTheThemesPalette()
    {
        apply("Dark");
        const BaseStyle style;
        QCOMPARE(style.getPalette(), static_cast<BaseStyle *>(QApplication::style())->getPalette());
    }

    void rolesOfTheApplicationStay_data()
    {
        QTest::addColumn<QByteArray>("className");
        QTest::newRow("all widgets") << QByteArray();
        QTest::newRow("a class") << QByteArray("QPushButton");
    }

    void rolesOfTheApplicationStay()
    {
        QFETCH(QByteArray, className);
        const char *name = className.isEmpty() ? nullptr : className.constData();
        QPushButton button;
        QPalette palette;
        palette.setColor(QPalette::ButtonText, Qt::magenta);
        QApplication::setPalette(palette, name);
        apply("Dark");
        QCOMPARE(button.palette().color(QPalette::ButtonText), QColor(Qt::magenta));
        const QColor dark = button.palette().color(QPalette::Window);
        apply("Light");
        QCOMPARE(button.palette().color(QPalette::ButtonText), QColor(Qt::magenta));
        QVERIFY(button.palette().color(QPalette::Window) != dark);
    }

    void rolesThatAreSetLaterStay()
    {
        apply("Dark");
        QLabel label;
        QPalette palette;
        palette.setColor(QPalette::WindowText, Qt::magenta);
        QApplication::setPalette(palette, "QLabel");
        QCOMPARE(label.palette().color(QPalette::WindowText), QColor(Qt::magenta));
        apply("Light");
        QCOMPARE(label.palette().color(QPalette::WindowText), QColor(Qt::magenta));
    }

    void rolesOfWidgetsStay()
    {
        QListWidget list;
        QPalette palette;
        palette.setColor(QPalette::Base, Qt::magenta);
        list.setPalette(palette);
        list.ensurePolished();
        apply("Dark");
        QCOMPARE(list.palette().color(QPalette::Base), QColor(Qt::magenta));
        apply("Light");
        QCOMPARE(list.palette().color(QPalette::Base), QColor(Qt::magenta));
    }

    void aProgramsGroundIsThatOfViewsThatWerePolishedBefore()
    {
        apply("Dark");
        QListWidget list;
        list.ensurePolished();
        QPalette palette;
        palette.setColor(QPalette::Base, Qt::magenta);
        QApplication::setPalette(palette);
        QCOMPARE(list.palette().color(QPalette::Base), QColor(Qt::magenta));
    }

    void tabsHaveTheThemesSizeUntilSomebodySetsAnother()
    {
        apply("HighContrast");
        QWidget window;
        auto *tabs = new QTabWidget(&window);
        tabs->addTab(new QLabel, text("tab"));
        tabs->tabBar()->ensurePolished();
        const QFont themes = tabs->tabBar()->font();
        QVERIFY(themes.pointSizeF() > QApplication::font().pointSizeF());

        QFont font;
        font.setPointSizeF(23);
        window.setFont(font);
        QCOMPARE(tabs->tabBar()->font().pointSizeF(), 23.0);
        window.setFont(QFont());
        QCOMPARE(tabs->tabBar()->font(), themes);
        tabs->setFont(font);
        QCOMPARE(tabs->tabBar()->font().pointSizeF(), 23.0);
        tabs->setFont(QFont());
        QApplication::setFont(font, "QTabBar");
        QCOMPARE(tabs->tabBar()->font().pointSizeF(), 23.0);
        apply("Dark");
        QCOMPARE(tabs->tabBar()->font().pointSizeF(), 23.0);
    }

    void theProgramsFontStays()
    {
        QApplication::setFont(QFont(text("DejaVu Serif"), 17));
        apply("Dark");
        QCOMPARE(QApplication::font().pointSize(), 17);
        apply("Light");
        QCOMPARE(QApplication::font().family(), text("DejaVu Serif"));
    }

    void theProgramsIconThemeStays()
    {
        QIcon::setThemeName(text("program"));
        apply("Dark");
        QCOMPARE(QIcon::themeName(), text("program"));
        QCOMPARE(QIcon::fallbackThemeName(), text("Dark"));
        QVERIFY(!QIcon::fromTheme(text("action.close")).isNull());
        apply("Light");
        QCOMPARE(QIcon::themeName(), text("program"));
        QCOMPARE(QIcon::fallbackThemeName(), text("Light"));
        leave();
        QCOMPARE(QIcon::themeName(), text("program"));
        QVERIFY(QIcon::fallbackThemeName() != text("Light"));
    }
};

QTEST_MAIN(CompleteModeTest)
#include "CompleteModeTest.moc"
