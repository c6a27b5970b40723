#include <theme/Theme.h>
#include <theme/ThemeFactory.h>

#include <QtTest/QtTest>

#include <support/MessageRecorder.h>
#include <support/Text.h>
#include <support/ThemeRepository.h>

using TARN::Theme;
using TARN::ThemeFactory;

/// The registry of the themes in a repository.
class ThemeFactoryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsEmpty()
    {
        QCOMPARE(ThemeFactory::getInstance(), ThemeFactory::getInstance());
        ThemeFactory *factory = ThemeFactory::getInstance();
        QVERIFY(factory->getThemesRepositoryPath().isNull());
        QVERIFY(factory->getAvailableThemes().isEmpty());
        QVERIFY(!factory->getTheme(text("Dark")));
        QVERIFY(!factory->getTheme(QString()));
    }

    void listsDirectoriesInOrder()
    {
        const ThemeRepository repository;
        for (const char *name : {"b", "A", "a", ".hidden"}) {
            repository.makeFolder(text(name));
        }
        repository.write(text("file"), "not a theme");
        ThemeFactory factory;
        factory.setThemesRepositoryPath(repository.path());
        QCOMPARE(factory.getAvailableThemes(), QStringList({text("A"), text("a"), text("b")}));
        QVERIFY(!factory.getTheme(text(".hidden")));
        QVERIFY(!factory.getTheme(text("file")));
        QVERIFY(!factory.getTheme(text("B")));
    }

    void everyDirectoryIsATheme()
    {
        const ThemeRepository repository;
        repository.makeFolder(text("Empty"));
        ThemeFactory factory;
        factory.setThemesRepositoryPath(repository.path());
        const QScopedPointer<Theme> theme(factory.getTheme(text("Empty")));
        QVERIFY(theme);
        QCOMPARE(theme->getName(), QString());
    }

    void eachCallMakesATheme()
    {
        const ThemeRepository repository;
        repository.addTheme(text("Dark"));
        ThemeFactory factory;
        factory.setThemesRepositoryPath(repository.path());
        const QScopedPointer<Theme> first(factory.getTheme(text("Dark")));
        repository.write(text("Dark/theme.xml"), "<theme><name>Renamed</name></theme>");
        const QScopedPointer<Theme> second(factory.getTheme(text("Dark")));
        QVERIFY(first.data() != second.data());
        QCOMPARE(first->getName(), text("Dark"));
        QCOMPARE(second->getName(), text("Renamed"));
    }

    void missingRepository()
    {
        MessageRecorder messages;
        ThemeFactory factory;
        factory.setThemesRepositoryPath(text("/no/such/../repository/"));
        QCOMPARE(factory.getThemesRepositoryPath(), text("/no/such/../repository/"));
        QVERIFY(factory.getAvailableThemes().isEmpty());
        QCOMPARE(messages.take(), QStringList());
    }

    void secondRepositoryReplacesTheFirst()
    {
        const ThemeRepository first;
        first.addTheme(text("One"));
        first.addTheme(text("Both"));
        const ThemeRepository second;
        second.addTheme(text("Both"));
        ThemeFactory factory;
        factory.setThemesRepositoryPath(first.path());
        factory.setThemesRepositoryPath(second.path());
        QCOMPARE(factory.getAvailableThemes(), QStringList{text("Both")});
        QVERIFY(!factory.getTheme(text("One")));
    }

    void relativePathStaysAsGiven()
    {
        const ThemeRepository repository;
        repository.addTheme(text("sub/Dark"));
        const QString former = QDir::currentPath();
        QVERIFY(QDir::setCurrent(repository.path()));
        ThemeFactory factory;
        factory.setThemesRepositoryPath(text("sub"));
        QCOMPARE(factory.getThemesRepositoryPath(), text("sub"));
        // Themes are found where they were when the repository was listed.
        QVERIFY(QDir::setCurrent(former));
        const QScopedPointer<Theme> theme(factory.getTheme(text("Dark")));
        QVERIFY(theme);
        QCOMPARE(theme->getName(), text("sub/Dark"));
    }

    void anyDirectoryCanBeRead()
    {
        const ThemeRepository repository;
        repository.addTheme(text("Light"));
        ThemeFactory factory;
        const QScopedPointer<Theme> theme(factory.readTheme(repository.path(text("Light"))));
        QCOMPARE(theme->getName(), text("Light"));
        const QScopedPointer<Theme> none(factory.readTheme(text("/no/such/theme")));
        QVERIFY(none);
        QCOMPARE(none->getName(), QString());
    }
};

QTEST_MAIN(ThemeFactoryTest)
#include "ThemeFactoryTest.moc"
