#include <QtTest/QtTest>

#include <mox-theme/support/DifferingThemes.h>
#include <mox-theme/support/JsonSchema.h>
#include <support/Text.h>
#include <support/ThemeRepository.h>

using namespace TARN::ThemeTool;

/// What the command "diff" prints and returns.
class DiffCommandTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void equalThemesDoNotDiffer();
    void spellingIsNoDifference();
    void foldersCanBeRelative();
    void textForPeople();
    void jsonFitsItsSchema();
    void shippedThemesDiffer();
    void faultyEntriesAreNoted();
    void unreadableThemes_data();
    void unreadableThemes();
};

void DiffCommandTest::equalThemesDoNotDiffer()
{
    Pair pair;
    pair.write("Images/Plain/scalable/a.svg", "x", "x");
    const Printed printed = pair.diff();
    QCOMPARE(printed.output, text("No differences\n"));
    QCOMPARE(printed.problems, QString());
    QCOMPARE(printed.exitCode, int(Fine));
}

void DiffCommandTest::spellingIsNoDifference()
{
    Pair pair;
    pair.before.colors = "<Color name='A'>#fff</Color><Color name='B'>red</Color>";
    pair.after.colors = "<!-- --><Color name='B'>#FF0000</Color><Color name='A'>#ffffff</Color>";
    pair.before.brushes.clear();
    pair.after.brushes.clear();
    pair.rolesBefore.clear();
    pair.rolesAfter.clear();
    QCOMPARE(pair.diff().output, text("No differences\n"));
}

void DiffCommandTest::foldersCanBeRelative()
{
    const ThemeRepository repository;
    repository.write(text("Plain/Images/Plain/scalable/same.svg"), "same");
    repository.addTheme(text("Plain"), plainConfiguration(), plainRoles());
    QVERIFY(QDir::setCurrent(repository.path()));
    QCOMPARE(diff(text("Plain"), repository.path(text("Plain"))).exitCode, int(Fine));
}

void DiffCommandTest::textForPeople()
{
    Pair pair;
    pair.before.colors += "<Color name='Old'>#ffffff</Color>";
    pair.after.colors.replace("#1a6fae", "#1a6faf");
    pair.after.opacities.replace("0.25", "0.5");
    pair.rolesAfter.replace("@ShadedBrush", "@MainColor");
    QCOMPARE(pair.diff().output,
             text("Colours\n"
                  "  - Old        #FFFFFF\n"
                  "  ~ MainColor  #1A6FAE -> #1A6FAF, invisible (0.00), "
                  "3 brushes and 3 palette entries follow\n"
                  "\n"
                  "Palette\n"
                  "  ~ Base  @ShadedBrush -> @MainColor, strong (0.27), in Active\n"
                  "\n"
                  "Opacities\n"
                  "  ~ RubberBandOpacity  0.25 -> 0.5\n"
                  "\n"
                  "4 differences; changes of colour: 1 strong, 1 invisible\n"));
}

void DiffCommandTest::jsonFitsItsSchema()
{
    for (const char *other : {"/Light", "/Dark"}) {
        const Printed printed =
            diff(text(MOX_THEMES "/Dark"), text(MOX_THEMES) + text(other), ReportFormat::Json);
        QCOMPARE(schemaProblem(printed.output.toUtf8(), text(MOX_DIFF_SCHEMA)), QString());
    }
}

void DiffCommandTest::shippedThemesDiffer()
{
    const Printed printed = diff(text(MOX_THEMES "/Dark"), text(MOX_THEMES "/Light"));
    QCOMPARE(printed.problems, QString());
    QCOMPARE(printed.exitCode, int(Findings));
    QVERIFY(printed.output.contains(text("Colours\n")));
}

void DiffCommandTest::faultyEntriesAreNoted()
{
    Pair pair;
    pair.after.colors += "<Color name='Bad'>nothing</Color><Color name='Lost'>#123456</Color>";
    const Printed printed = pair.diff();
    QCOMPARE(printed.output, text("No differences\n"));
    QVERIFY(printed.problems.contains(text("config.xml: has a faulty entry")));
    QCOMPARE(printed.problems.count(QLatin1Char('\n')), 1);
    QCOMPARE(printed.exitCode, int(Fine));
}

void DiffCommandTest::unreadableThemes_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("content");

    QTest::newRow("no folder") << QString() << QByteArray();
    QTest::newRow("description") << text("Bad/theme.xml") << QByteArray("<theme>");
    QTest::newRow("configuration") << text("Bad/config.xml") << QByteArray("<Config>\n<Palette>");
}

void DiffCommandTest::unreadableThemes()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, content);

    const ThemeRepository repository;
    const QString good = repository.addTheme(text("Good"));
    if (!file.isEmpty()) {
        repository.addTheme(text("Bad"));
        repository.write(file, content);
    }
    for (const Printed &printed :
         {diff(good, repository.path(text("Bad"))), diff(repository.path(text("Bad")), good)}) {
        QCOMPARE(printed.output, QString());
        QVERIFY2(printed.problems.contains(repository.path(text("Bad"))),
                 qPrintable(printed.problems));
        QCOMPARE(printed.problems.count(QLatin1Char('\n')), 1);
        QCOMPARE(printed.exitCode, int(CannotRun));
    }
}

QTEST_MAIN(DiffCommandTest)
#include "DiffCommandTest.moc"
