#include <theme/ThemeQApplication.h>

#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>

#include <support/Text.h>

using TARN::ThemeQApplication;

namespace {

/// An application that comes up themed.
class ThemedApplication
{
public:
    explicit ThemedApplication(const QString &theme, bool clean = false)
        : m_app(m_argumentCount, m_arguments)
    {
        m_app.setProperty("appLiveThemeSwitch", clean);
        m_app.initThemesRepository(text(MOX_SHIPPED_THEMES));
        m_app.setTheme(theme);
    }

private:
    int m_argumentCount = 1;
    QByteArray m_program = "program";
    char *m_arguments[2] = {m_program.data(), nullptr};
    ThemeQApplication m_app;
};

/// Comes up themed, shows texts of all kinds, and ends. Returns what was seen.
QImage seenInAnApplication()
{
    const ThemedApplication app(text("Dark"));
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    layout->addWidget(new QPushButton(text("&Button")));
    auto *combo = new QComboBox;
    combo->addItem(text("An entry that is far too long for the box"));
    combo->setMaximumWidth(100);
    layout->addWidget(combo);
    auto *list = new QListWidget;
    list->addItems({text("First"), text("Second")});
    layout->addWidget(list);
    window.resize(200, 200);
    return window.grab().toImage();
}

} // namespace

/// Programs that make one application after the other.
class SuccessiveApplicationsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachLooksAsTheFirst()
    {
        const QImage first = seenInAnApplication();
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(seenInAnApplication(), first);
        }
    }

    /// Search paths, resources and fonts outlive the application.
    void aCleanSwitchTakesBackWhatFormerApplicationsLeft_data()
    {
        QTest::addColumn<bool>("formerIsClean");
        QTest::newRow("after a clean switch") << true;
        QTest::newRow("after themes that add up") << false;
    }

    void aCleanSwitchTakesBackWhatFormerApplicationsLeft()
    {
        QFETCH(bool, formerIsClean);
        {
            const ThemedApplication former(text("Dark"), formerIsClean);
        }
        const ThemedApplication app(text("Light"), true);
        const QString images = text(MOX_SHIPPED_THEMES) + text("/Light/Images/");
        QCOMPARE(QDir::searchPaths(text("icons")),
                 QStringList({images + text("Light/scalable"), text(":/Icons")}));
        QCOMPARE(QDir::searchPaths(text("cursors")).size(), 2);
        QCOMPARE(QDir::searchPaths(text("resources")).size(), 1);
        QCOMPARE(QIcon::themeSearchPaths().filter(text(MOX_SHIPPED_THEMES)), QStringList{images});
        QCOMPARE(QIcon::fallbackSearchPaths().count(text(":/icons")), 1);
        QVERIFY(!QFontDatabase::applicationFontFamilies(0).isEmpty());
        QVERIFY(!QFontDatabase::applicationFontFamilies(1).isEmpty());
        QVERIFY(QFontDatabase::applicationFontFamilies(2).isEmpty());
    }

    void byDefaultThePathsOfFormerApplicationsStay()
    {
        {
            const ThemedApplication former(text("Dark"));
        }
        const ThemedApplication app(text("Light"));
        QCOMPARE(QDir::searchPaths(text("icons")).size(), 4);
        QCOMPARE(QIcon::fallbackSearchPaths().count(text(":/icons")), 2);
    }
};

QTEST_APPLESS_MAIN(SuccessiveApplicationsTest)
#include "SuccessiveApplicationsTest.moc"
