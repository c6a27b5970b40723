#include <readers/ThemeConfigurationReader.h>
#include <theme/BaseThemeSettings.h>

#include <QtCore/QDir>
#include <QtTest/QtTest>

#include <commands/Commands.h>
#include <generator/tokens/Tokens.h>
#include <mox-theme/support/Printed.h>
#include <mox-theme/support/SmallTheme.h>
#include <support/Text.h>
#include <support/ThemeRepository.h>

using namespace TARN;
using namespace TARN::ThemeTool;

namespace {

NewOptions optionsFor(const ThemeRepository &repository, const QString &name = text("Ocean"))
{
    NewOptions options;
    options.name = name;
    options.accent = QColor(0x3D, 0x8F, 0xD1);
    options.out = repository.path();
    return options;
}

Printed run(const NewOptions &options)
{
    return printedBy([&options] { return runCommand(options); });
}

} // namespace

/// What the command "new" writes, prints and returns.
class NewCommandTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void themeAndTokenFileAreWritten();
    void nextStepsAreTold();
    void accentThatMovedIsTold();
    void nextStepsCanBeTyped();
    void repositoryIsMade();
    void seedsAreThoseOfTheOptions();
    void tokenFileMakesTheSameTheme();
    void formerThemeIsKept();
    void formerThemeIsReplacedByForce();
    void tokenFileOfTheAuthorIsKept();
    void folderThatIsNoThemeIsKept();
    void unusableNamesAreRefused();
};

void NewCommandTest::themeAndTokenFileAreWritten()
{
    const ThemeRepository repository;
    const Printed printed = run(optionsFor(repository));
    QCOMPARE(printed.problems, QString());
    QCOMPARE(printed.exitCode, int(Fine));
    QCOMPARE(
        QDir(repository.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
        QStringList({text("Ocean"), text("Ocean.toml")}));
    const QString theme = repository.path(text("Ocean"));
    QCOMPARE(BaseThemeSettings(theme + text("/theme.xml")).getName(), text("Ocean"));
    QCOMPARE(ThemeConfigurationReader(theme + text("/config.xml")).getStatus(), 0);
}

void NewCommandTest::nextStepsAreTold()
{
    const ThemeRepository repository;
    QVERIFY(QDir::setCurrent(repository.path()));
    NewOptions options = optionsFor(repository);
    options.out = text(".");
    // An accent that is legible as it is, so that there is nothing to tell of it.
    options.accent = QColor(0x5e, 0xaf, 0xf3);
    QCOMPARE(run(options).output, text("Wrote the theme Ocean\n"
                                       "Wrote Ocean.toml, what the theme is made of\n"
                                       "Next: mox-theme preview Ocean\n"
                                       "      mox-theme check Ocean\n"
                                       "After a change of the token file:\n"
                                       "      mox-theme build Ocean.toml --out Ocean\n"));
}

void NewCommandTest::accentThatMovedIsTold()
{
    const ThemeRepository repository;
    NewOptions options = optionsFor(repository);
    options.accent = Qt::black;
    const QStringList lines = run(options).output.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    const QRegularExpression moved(text("^The accent #000000 became #[0-9A-F]{6}, to be legible$"));
    QVERIFY2(moved.match(lines.last()).hasMatch(), qPrintable(lines.last()));
}

void NewCommandTest::nextStepsCanBeTyped()
{
    const ThemeRepository repository;
    const Printed printed = run(optionsFor(repository, text("Bob's Ocean")));
    QVERIFY2(printed.output.contains(text("preview '%1/Bob'\\''s Ocean'\n").arg(repository.path())),
             qPrintable(printed.output));
}

void NewCommandTest::repositoryIsMade()
{
    const ThemeRepository repository;
    NewOptions options = optionsFor(repository);
    options.out = repository.path(text("a/themes"));
    QCOMPARE(run(options).exitCode, int(Fine));
    QVERIFY(QFileInfo::exists(repository.path(text("a/themes/Ocean/theme.xml"))));
    QVERIFY(QFileInfo::exists(repository.path(text("a/themes/Ocean.toml"))));
}

void NewCommandTest::seedsAreThoseOfTheOptions()
{
    const ThemeRepository repository;
    NewOptions options = optionsFor(repository);
    options.base = Base::Light;
    QCOMPARE(run(options).exitCode, int(Fine));
    Tokens tokens;
    QCOMPARE(readTokens(repository.path(text("Ocean.toml")), tokens).text, QString());
    QCOMPARE(tokens.name, text("Ocean"));
    QVERIFY(tokens.base == Base::Light);
    QCOMPARE(tokens.accent, options.accent);
}

void NewCommandTest::tokenFileMakesTheSameTheme()
{
    const ThemeRepository repository;
    QCOMPARE(run(optionsFor(repository)).exitCode, int(Fine));
    const BuildOptions build{repository.path(text("Ocean.toml")), repository.path(text("Again"))};
    QCOMPARE(printedBy([&build] { return runCommand(build); }).exitCode, int(Fine));
    QCOMPARE(filesBelow(repository.path(text("Again"))),
             filesBelow(repository.path(text("Ocean"))));
}

void NewCommandTest::formerThemeIsKept()
{
    const ThemeRepository repository;
    repository.write(text("Ocean/theme.xml"), "mine");
    const auto before = filesBelow(repository.path());
    const Printed printed = run(optionsFor(repository));
    QCOMPARE(printed.exitCode, int(CannotRun));
    QCOMPARE(printed.output, QString());
    QCOMPARE(printed.problems,
             text("mox-theme: %1/Ocean is there already; --force writes over it\n")
                 .arg(repository.path()));
    QCOMPARE(filesBelow(repository.path()), before);
}

void NewCommandTest::formerThemeIsReplacedByForce()
{
    const ThemeRepository repository;
    repository.write(text("Ocean/theme.xml"), "mine");
    NewOptions options = optionsFor(repository);
    options.force = true;
    QCOMPARE(run(options).exitCode, int(Fine));
    QVERIFY(QFileInfo::exists(repository.path(text("Ocean/config.xml"))));
    QVERIFY(QFileInfo(repository.path(text("Ocean/theme.xml"))).size() > 4);
}

void NewCommandTest::tokenFileOfTheAuthorIsKept()
{
    const ThemeRepository repository;
    const QString path = repository.write(text("Ocean.toml"), "mine");
    const Printed printed = run(optionsFor(repository));
    QCOMPARE(printed.exitCode, int(Fine));
    QCOMPARE(filesBelow(repository.path()).value(text("Ocean.toml")), QByteArray("mine"));
    QVERIFY2(printed.output.contains(path + text(" was there already")),
             qPrintable(printed.output));
}

void NewCommandTest::folderThatIsNoThemeIsKept()
{
    const ThemeRepository repository;
    repository.write(text("Ocean/letter.txt"), "mine");
    NewOptions options = optionsFor(repository);
    options.force = true;
    const Printed printed = run(options);
    QCOMPARE(printed.exitCode, int(CannotRun));
    QVERIFY2(printed.problems.contains(text("is no theme")), qPrintable(printed.problems));
    QCOMPARE(filesBelow(repository.path()).size(), 2);
}

void NewCommandTest::unusableNamesAreRefused()
{
    const ThemeRepository repository;
    const Printed printed = run(optionsFor(repository, text("../Ocean")));
    QCOMPARE(printed.exitCode, int(CannotRun));
    QVERIFY2(printed.problems.startsWith(text(R"(mox-theme: the name "../Ocean" )")),
             qPrintable(printed.problems));
    QVERIFY(filesBelow(repository.path()).isEmpty());
}

QTEST_MAIN(NewCommandTest)
#include "NewCommandTest.moc"
