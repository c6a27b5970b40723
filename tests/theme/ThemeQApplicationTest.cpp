#include <theme/Theme.h>
#include <theme/ThemeFactory.h>
#include <theme/ThemeQApplication.h>

#include <QtTest/QtTest>

#include <support/MessageRecorder.h>
#include <support/Text.h>
#include <support/ThemeRepository.h>

using TARN::Theme;
using TARN::ThemeFactory;
using TARN::ThemeQApplication;

namespace {

/// A command line that lives as long as the application object made from it.
class CommandLine
{
public:
    explicit CommandLine(const QStringList &options)
        : m_texts{"/proc/self/exe"}
    {
        for (const QString &option : options) {
            m_texts.append(option.toLocal8Bit());
        }
        for (QByteArray &argument : m_texts) {
            m_arguments.append(argument.data());
        }
        m_arguments.append(nullptr);
        m_count = m_texts.size();
    }

    int &count() { return m_count; }
    char **arguments() { return m_arguments.data(); }

private:
    QList<QByteArray> m_texts;
    QVector<char *> m_arguments;
    int m_count;
};

/// A theme that records whom it was applied to, and what was current then.
class RecordingTheme : public Theme
{
public:
    QString getName() const override { return QStringLiteral("Recording"); }

    void customize(QApplication *app) override
    {
        target = app;
        currentThen = static_cast<ThemeQApplication *>(app)->getCurrentTheme();
    }

    QApplication *target = nullptr;
    Theme *currentThen = nullptr;
};

} // namespace

/// The application object: its command line, its start and its switches. Each function makes the
/// application object that it needs.
class ThemeQApplicationTest : public QObject
{
    Q_OBJECT

private:
    ThemeRepository m_repository;
    ThemeRepository m_otherRepository;

    static QString currentName(const ThemeQApplication &app)
    {
        return app.getCurrentTheme() ? app.getCurrentTheme()->getName() : QString();
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_repository.addTheme(text("Dark"));
        m_repository.addTheme(text("Light"));
        m_otherRepository.addTheme(text("Other"));
    }

    void metaObject()
    {
        const QMetaObject &type = ThemeQApplication::staticMetaObject;
        QCOMPARE(type.className(), "TARN::ThemeQApplication");
        QCOMPARE(type.superClass(), &QApplication::staticMetaObject);
        QCOMPARE(type.methodOffset(), type.methodCount());
        QCOMPARE(type.propertyOffset(), type.propertyCount());
        QCOMPARE(type.classInfoOffset(), type.classInfoCount());
    }

    void optionsInEitherOrder_data()
    {
        QTest::addColumn<bool>("themeFirst");
        QTest::newRow("theme first") << true;
        QTest::newRow("repository first") << false;
    }

    void optionsInEitherOrder()
    {
        QFETCH(bool, themeFirst);
        const QStringList theme{text("--theme"), text("Dark")};
        const QStringList repository{text("--theme-repository"), m_repository.path()};
        CommandLine line(themeFirst ? theme + repository : repository + theme);
        const ThemeQApplication app(line.count(), line.arguments());
        QCOMPARE(currentName(app), text("Dark"));
        QCOMPARE(app.getThemeRepository(), m_repository.path());
        // The options stay visible to the application.
        QCOMPARE(QCoreApplication::arguments().size(), 5);
    }

    void withoutOptionsNothingIsApplied()
    {
        CommandLine line({});
        const ThemeQApplication app(line.count(), line.arguments());
        QVERIFY(!app.getCurrentTheme());
        QVERIFY(app.getThemeRepository().isNull());
        QVERIFY(!app.property("theme_var").isValid());
        QVERIFY(app.styleSheet().isEmpty());
    }

    void constructorArgumentsAreUsed()
    {
        CommandLine line({});
        const ThemeQApplication app(line.count(), line.arguments(), text("Light"),
                                    m_repository.path());
        QCOMPARE(currentName(app), text("Light"));
    }

    void commandLineWins()
    {
        CommandLine line({text("--theme"), text("Dark")});
        const ThemeQApplication app(line.count(), line.arguments(), text("Light"),
                                    m_repository.path());
        QCOMPARE(currentName(app), text("Dark"));
        QCOMPARE(app.getThemeRepository(), m_repository.path());
    }

    void repositoryOfTheCommandLineWins()
    {
        CommandLine line({text("--theme-repository"), m_otherRepository.path()});
        const ThemeQApplication app(line.count(), line.arguments(), text("Other"),
                                    m_repository.path());
        QCOMPARE(app.getThemeRepository(), m_otherRepository.path());
        QCOMPARE(currentName(app), text("Other"));
    }

    void destructionLeavesThemeAndFactoryAlone()
    {
        CommandLine line({});
        Theme *theme = nullptr;
        {
            const ThemeQApplication app(line.count(), line.arguments(), text("Dark"),
                                        m_repository.path());
            theme = app.getCurrentTheme();
        }
        QCOMPARE(theme->getName(), text("Dark"));
        QCOMPARE(ThemeFactory::getInstance()->getThemesRepositoryPath(), m_repository.path());
    }

    void joinedFormIsIgnored()
    {
        CommandLine line({text("--theme=Dark")});
        const ThemeQApplication app(line.count(), line.arguments(), QString(), m_repository.path());
        QVERIFY(!app.getCurrentTheme());
    }

    void optionWithoutValueIsIgnored()
    {
        CommandLine line({text("--theme")});
        const ThemeQApplication app(line.count(), line.arguments(), text("Light"),
                                    m_repository.path());
        QCOMPARE(currentName(app), text("Light"));
    }

    void unknownThemeLeavesTheApplicationUnthemed()
    {
        MessageRecorder messages;
        CommandLine line({text("--theme"), text("Unknown")});
        const ThemeQApplication app(line.count(), line.arguments(), text("Light"),
                                    m_repository.path());
        QVERIFY(!app.getCurrentTheme());
        QVERIFY(!app.property("theme_var").isValid());
        QVERIFY(messages.take().filter(text("theme")).isEmpty());
    }

    void themeWithoutRepositoryIsNotFound()
    {
        CommandLine line({text("--theme"), text("Dark")});
        const ThemeQApplication app(line.count(), line.arguments());
        QVERIFY(!app.getCurrentTheme());
    }

    void argumentsAreParsed_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("theme");
        QTest::addColumn<QString>("repository");
        const auto row = [](const char *name, const QString &arguments, const char *theme,
                            const char *repository) {
            QTest::newRow(name) << arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts)
                                << text(theme) << text(repository);
        };
        row("none", text("app"), "t", "r");
        row("both", text("app --theme a --theme-repository b"), "a", "b");
        row("first of two", text("app --theme a --theme b"), "a", "r");
        row("last is ignored", text("app --theme-repository x --theme"), "t", "x");
        row("the first decides", text("app --theme a x --theme"), "a", "r");
        row("value like an option", text("app --theme --theme-repository"), "--theme-repository",
            "r");
        row("values overlap", text("app --theme --theme-repository x"), "--theme-repository", "x");
        row("case", text("app --Theme a"), "t", "r");
        row("joined", text("app --theme=a --theme-repository=b"), "t", "r");
        row("single dash", text("app -theme a"), "t", "r");
        row("the program's name counts too", text("--theme a"), "a", "r");
    }

    void argumentsAreParsed()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, theme);
        QFETCH(QString, repository);
        CommandLine line({});
        const ThemeQApplication app(line.count(), line.arguments());
        QString foundTheme = text("t");
        QString foundRepository = text("r");
        app.parseArguments(arguments, foundTheme, foundRepository);
        QCOMPARE(foundTheme, theme);
        QCOMPARE(foundRepository, repository);
    }

    void emptyRepositoryStandsForTheDefault()
    {
        CommandLine line({});
        ThemeQApplication app(line.count(), line.arguments(), QString(), m_repository.path());
        app.initThemesRepository(QString());
        QCOMPARE(app.getThemeRepository(), QCoreApplication::applicationDirPath() + text("Themes"));
    }

    void emptyRepositoryKeepsTheFactorys()
    {
        ThemeFactory::getInstance()->setThemesRepositoryPath(m_repository.path());
        CommandLine line({text("--theme"), text("Dark")});
        const ThemeQApplication app(line.count(), line.arguments());
        QCOMPARE(currentName(app), text("Dark"));
    }

    void switchByName()
    {
        CommandLine line({});
        ThemeQApplication app(line.count(), line.arguments(), text("Dark"), m_repository.path());
        QVERIFY(app.setTheme(text("Light")));
        QCOMPARE(currentName(app), text("Light"));
        Theme *light = app.getCurrentTheme();
        const QString styleSheet = app.styleSheet();
        QVERIFY(!app.setTheme(text("Unknown")));
        QCOMPARE(app.getCurrentTheme(), light);
        QCOMPARE(app.styleSheet(), styleSheet);
        QVERIFY(!app.setTheme(QString()));
    }

    void switchOfRepository()
    {
        CommandLine line({});
        ThemeQApplication app(line.count(), line.arguments(), text("Dark"), m_repository.path());
        app.initThemesRepository(m_otherRepository.path());
        QVERIFY(!app.setTheme(text("Dark")));
        QVERIFY(app.setTheme(text("Other")));
        QCOMPARE(currentName(app), text("Other"));
    }

    void switchByObject()
    {
        RecordingTheme theme;
        CommandLine line({});
        ThemeQApplication app(line.count(), line.arguments(), text("Dark"), m_repository.path());
        Theme *former = app.getCurrentTheme();
        app.setTheme(theme);
        QCOMPARE(theme.target, &app);
        QCOMPARE(theme.currentThen, former);
        QCOMPARE(app.getCurrentTheme(), &theme);
    }

    void themeThatAppliesNothingBecomesCurrent()
    {
        m_repository.makeFolder(text("Broken"));
        MessageRecorder messages;
        CommandLine line({});
        ThemeQApplication app(line.count(), line.arguments(), QString(), m_repository.path());
        QVERIFY(app.setTheme(text("Broken")));
        QVERIFY(app.getCurrentTheme());
        QVERIFY(!app.property("theme_var").isValid());
        QCOMPARE(messages.take().filter(text("Error reading")).size(), 1);
    }
};

QTEST_APPLESS_MAIN(ThemeQApplicationTest)
#include "ThemeQApplicationTest.moc"
