#include <theme/BaseTheme.h>

#include <QtGui/QFontDatabase>
#include <QtTest/QtTest>

#include <support/MessageRecorder.h>
#include <support/Text.h>
#include <support/ThemeRepository.h>

using TARN::BaseTheme;

namespace {

QByteArray fontFile()
{
    QFile file(text(MOX_SHIPPED_THEMES "/Dark/Fonts/OpenSans-Regular.ttf"));
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("The test needs the shipped font");
    }
    return file.readAll();
}

} // namespace

/// What applying a theme makes of the theme's fonts, images and resource files.
class AppliedFilesTest : public QObject
{
    Q_OBJECT

private:
    ThemeRepository m_repository;

    QString addTheme() const { return m_repository.addTheme(text("Test")); }

private Q_SLOTS:
    void fontsAreRegistered()
    {
        m_repository.write(text("Test/Fonts/a.ttf"), fontFile());
        m_repository.write(text("Test/Fonts/b.otf"), fontFile());
        m_repository.write(text("Test/Fonts/broken.ttf"), "no font");
        MessageRecorder messages;
        BaseTheme(addTheme()).customize(qApp);
        QCOMPARE(messages.take(), QStringList());
        QCOMPARE(QFontDatabase::applicationFontFamilies(0), QStringList{text("Open Sans")});
        QCOMPARE(QFontDatabase::applicationFontFamilies(1), QStringList());
    }

    void fontsOfOtherKindsAreNot()
    {
        m_repository.write(text("Test/Fonts/b.otf"), fontFile());
        BaseTheme(addTheme()).customize(qApp);
        QCOMPARE(QFontDatabase::applicationFontFamilies(0), QStringList());
    }

    void fontSuffixIsCaseInsensitive()
    {
        m_repository.write(text("Test/Fonts/A.TTF"), fontFile());
        BaseTheme(addTheme()).customize(qApp);
        QCOMPARE(QFontDatabase::applicationFontFamilies(0), QStringList{text("Open Sans")});
    }

    void searchPathsAreAdded()
    {
        const QStringList iconThemes = QIcon::themeSearchPaths();
        const QStringList fallbacks = QIcon::fallbackSearchPaths();
        QDir::addSearchPath(text("cursors"), text("/own"));
        const QString directory = addTheme();
        BaseTheme(directory).customize(qApp);
        const QString images = directory + text("/Images/Test");
        QCOMPARE(QDir::searchPaths(text("icons")),
                 QStringList({images + text("/scalable"), text(":/Icons")}));
        QCOMPARE(QDir::searchPaths(text("cursors")),
                 QStringList({text("/own"), images + text("/Cursors"), text(":/Cursors")}));
        QCOMPARE(QDir::searchPaths(text("resources")),
                 QStringList{images + text("/theme_resources")});
        QCOMPARE(QIcon::themeSearchPaths(), iconThemes + QStringList{directory + text("/Images/")});
        QCOMPARE(QIcon::fallbackSearchPaths(), fallbacks + QStringList{text(":/icons")});
        QCOMPARE(QIcon::themeName(), text("Test"));
    }

    void searchPathsAccumulate()
    {
        const QString a = m_repository.addTheme(text("A"));
        const QString b = m_repository.addTheme(text("B"));
        m_repository.write(text("A/Images/A/scalable/x.svg"), "a");
        m_repository.write(text("B/Images/B/scalable/x.svg"), "b");
        m_repository.write(text("B/Images/B/scalable/y.svg"), "y");
        BaseTheme(a).customize(qApp);
        BaseTheme(b).customize(qApp);
        const QString aIcons = a + text("/Images/A/scalable");
        const QString bIcons = b + text("/Images/B/scalable");
        QCOMPARE(QDir::searchPaths(text("icons")),
                 QStringList({aIcons, text(":/Icons"), bIcons, text(":/Icons")}));
        QCOMPARE(QFileInfo(text("icons:x.svg")).absoluteFilePath(), aIcons + text("/x.svg"));
        QCOMPARE(QFileInfo(text("icons:y.svg")).absoluteFilePath(), bIcons + text("/y.svg"));
        QCOMPARE(QIcon::fallbackSearchPaths().count(text(":/icons")), 2);
        QCOMPARE(QIcon::themeSearchPaths().mid(QIcon::themeSearchPaths().size() - 2),
                 QStringList({a + text("/Images/"), b + text("/Images/")}));
        QCOMPARE(QIcon::themeName(), text("B"));
    }

    /// What a clean switch takes back is what themes have added, not the same of the application.
    void searchPathsOfTheApplicationStay()
    {
        qApp->setProperty("appLiveThemeSwitch", true);
        QDir::setSearchPaths(text("cursors"), {text(":/Cursors"), text("/own")});
        BaseTheme(m_repository.addTheme(text("A"))).customize(qApp);
        const QString b = m_repository.addTheme(text("B"));
        BaseTheme(b).customize(qApp);
        QCOMPARE(QDir::searchPaths(text("cursors")),
                 QStringList({text(":/Cursors"), text("/own"), b + text("/Images/B/Cursors"),
                              text(":/Cursors")}));
    }

    void resourceFilesAreRegistered()
    {
        const QString directory = addTheme();
        m_repository.makeFolder(text("Test/Images/Test/scalable"));
        QVERIFY(QFile::copy(text(MOX_TEST_RCC),
                            directory + text("/Images/Test/scalable/pictures.rcc")));
        QVERIFY(!QFile::exists(text(":/Icons/test_pictures/dot.svg")));
        BaseTheme(directory).customize(qApp);
        QVERIFY(QFile::exists(text(":/Icons/test_pictures/dot.svg")));
    }

    void resourceFilesInFoldersBelowAreNot()
    {
        const QString directory = addTheme();
        m_repository.makeFolder(text("Test/Images/Test/scalable/below"));
        QVERIFY(QFile::copy(text(MOX_TEST_RCC),
                            directory + text("/Images/Test/scalable/below/pictures.rcc")));
        BaseTheme(directory).customize(qApp);
        QVERIFY(!QFile::exists(text(":/Icons/test_pictures/dot.svg")));
    }

    void resourceSuffixIsCaseSensitive()
    {
        const QString directory = addTheme();
        m_repository.makeFolder(text("Test/Images/Test/scalable"));
        QVERIFY(QFile::copy(text(MOX_TEST_RCC),
                            directory + text("/Images/Test/scalable/pictures.RCC")));
        BaseTheme(directory).customize(qApp);
        QVERIFY(!QFile::exists(text(":/Icons/test_pictures/dot.svg")));
    }
};

QTEST_MAIN(AppliedFilesTest)
#include "AppliedFilesTest.moc"
