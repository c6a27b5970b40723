#include <readers/ThemeConfigurationReader.h>
#include <theme/BaseThemeSettings.h>

#include <QtTest/QtTest>

#include <commands/Commands.h>
#include <mox-theme/support/Printed.h>
#include <mox-theme/support/SmallTheme.h>
#include <support/Text.h>
#include <support/ThemeRepository.h>

using namespace TARN;
using namespace TARN::ThemeTool;

namespace {

const char Sound[] = "name = \"Ocean\"\n[seeds]\naccent = \"#3D8FD1\"\n";

/// Builds the token file \a content in \a folder, to the folder "Theme" there.
Printed build(const ThemeRepository &folder, const QByteArray &content)
{
    const BuildOptions options{folder.write(text("ocean.toml"), content),
                               folder.path(text("Theme"))};
    return printedBy([&options] { return runCommand(options); });
}

} // namespace

/// What the command "build" writes, prints and returns.
class BuildCommandTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void themeIsWritten();
    void overridesReachTheTheme();
    void formerThemeIsReplaced();
    void sameTokensMakeSameBytes();
    void problemsTellTheirPlace();
    void problemsOfTheWholeFileTellTheFile();
    void overrideProblemsAreTold();
    void problemsLeaveTheFormerTheme();
    void folderThatIsNoThemeIsKept();
};

void BuildCommandTest::themeIsWritten()
{
    const ThemeRepository folder;
    const Printed printed = build(folder, Sound);
    QCOMPARE(printed.problems, QString());
    QCOMPARE(printed.exitCode, int(Fine));
    const QString theme = folder.path(text("Theme"));
    QCOMPARE(printed.output, text("Wrote the theme %1\n"
                                  "Next: mox-theme preview %1\n"
                                  "      mox-theme check %1\n")
                                 .arg(theme));
    QCOMPARE(ThemeConfigurationReader(theme + text("/config.xml")).getStatus(), 0);
    QVERIFY(QFileInfo::exists(theme + text("/Images/Ocean/index.theme")));
}

void BuildCommandTest::overridesReachTheTheme()
{
    const ThemeRepository folder;
    QCOMPARE(build(folder, QByteArray(Sound) + "[radius]\nlarge = 17\n"
                                               "[colors]\nBackgroundColor = \"#13579B\"\n")
                 .exitCode,
             int(Fine));
    const ThemeConfigurationReader reader(folder.path(text("Theme/config.xml")));
    QCOMPARE(reader.getColorsMap().value(text("BackgroundColor")), QColor(0x13, 0x57, 0x9B));
    QCOMPARE(reader.getCornerRadiusMap().value(text("LargeSize")), 17);
}

void BuildCommandTest::formerThemeIsReplaced()
{
    const ThemeRepository folder;
    QCOMPARE(build(folder, Sound).exitCode, int(Fine));
    folder.write(text("Theme/own"), "own");
    QCOMPARE(build(folder, "name = \"Sea\"\nseeds.accent = \"teal\"\n").exitCode, int(Fine));
    QVERIFY(QFileInfo::exists(folder.path(text("Theme/own"))));
    QVERIFY(QFileInfo::exists(folder.path(text("Theme/Images/Sea"))));
    const TARN::BaseThemeSettings settings(folder.path(text("Theme/theme.xml")));
    QCOMPARE(settings.getName(), text("Sea"));
}

void BuildCommandTest::sameTokensMakeSameBytes()
{
    const ThemeRepository folder;
    QCOMPARE(build(folder, Sound).exitCode, int(Fine));
    const auto first = filesBelow(folder.path());
    QCOMPARE(build(folder, Sound).exitCode, int(Fine));
    QCOMPARE(filesBelow(folder.path()), first);
}

void BuildCommandTest::problemsTellTheirPlace()
{
    const ThemeRepository folder;
    const Printed printed = build(folder, "name = \"Ocean\"\n[seeds]\nacent = \"#3D8FD1\"\n");
    QCOMPARE(printed.exitCode, int(CannotRun));
    QCOMPARE(printed.output, QString());
    QCOMPARE(printed.problems,
             text("mox-theme: %1:3:1: unknown key \"acent\" in [seeds]; did you mean \"accent\"?\n")
                 .arg(folder.path(text("ocean.toml"))));
}

void BuildCommandTest::problemsOfTheWholeFileTellTheFile()
{
    const ThemeRepository folder;
    const QString path = folder.path(text("none.toml"));
    const BuildOptions options{path, folder.path(text("Theme"))};
    const Printed printed = printedBy([&options] { return runCommand(options); });
    QCOMPARE(printed.exitCode, int(CannotRun));
    QCOMPARE(printed.problems, text("mox-theme: %1: there is no such file\n").arg(path));
}

void BuildCommandTest::overrideProblemsAreTold()
{
    const ThemeRepository folder;
    const Printed printed =
        build(folder, QByteArray(Sound) + "[colors]\nBackgroundColor = \"MainColour\"\n");
    QCOMPARE(printed.exitCode, int(CannotRun));
    const int line = QByteArray(Sound).count('\n') + 2;
    QCOMPARE(printed.problems,
             text("mox-theme: %1:%2:1: 'MainColour' is neither a colour nor a colour variable; did "
                  "you mean 'MainColor'?\n")
                 .arg(folder.path(text("ocean.toml")))
                 .arg(line));
    QVERIFY(!QFileInfo::exists(folder.path(text("Theme"))));
}

void BuildCommandTest::problemsLeaveTheFormerTheme()
{
    const ThemeRepository folder;
    QCOMPARE(build(folder, Sound).exitCode, int(Fine));
    const auto before = filesBelow(folder.path(text("Theme")));
    QCOMPARE(build(folder, QByteArray(Sound) + "[radius]\nlarge = 170\n").exitCode, int(CannotRun));
    QCOMPARE(filesBelow(folder.path(text("Theme"))), before);
}

void BuildCommandTest::folderThatIsNoThemeIsKept()
{
    const ThemeRepository folder;
    folder.write(text("Theme/letter.txt"), "mine");
    const Printed printed = build(folder, Sound);
    QCOMPARE(printed.exitCode, int(CannotRun));
    QVERIFY2(printed.problems.contains(text("is no theme")), qPrintable(printed.problems));
    QCOMPARE(filesBelow(folder.path(text("Theme"))).size(), 1);
}

QTEST_MAIN(BuildCommandTest)
#include "BuildCommandTest.moc"
