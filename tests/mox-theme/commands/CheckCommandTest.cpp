#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtTest/QtTest>

#include <check/Check.h>
#include <commands/Commands.h>
#include <mox-theme/support/Printed.h>
#include <support/Text.h>
#include <support/ThemeRepository.h>

using namespace TARN::ThemeTool;

namespace {

Printed check(const QStringList &directories, ReportFormat format = ReportFormat::Text,
              const QMap<QString, Severity> &rules = {})
{
    CheckOptions options;
    options.directories = directories;
    options.format = format;
    options.rules = rules;
    return printedBy([&options] { return runCommand(options); });
}

} // namespace

/// What the command "check" prints and returns.
class CheckCommandTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findingsAreReported();
    void warningsAreFindings();
    void rulesCanBeSwitchedOff();
    void severalThemesMakeOneReport();
    void anUnreadableThemeLeavesTheOthers();
    void nothingIsReportedWithoutATheme();
};

void CheckCommandTest::findingsAreReported()
{
    const ThemeRepository repository;
    ThemeConfiguration configuration;
    configuration.colors = "<Color name='MainColor'>no colour</Color>";
    const Printed printed = check({repository.addTheme(text("Bad"), configuration)});
    QVERIFY2(printed.output.contains(text(" error: ")), qPrintable(printed.output));
    QVERIFY(printed.output.endsWith(text(" in 1 theme\n")));
    QCOMPARE(printed.problems, QString());
    QCOMPARE(printed.exitCode, int(Findings));
}

void CheckCommandTest::warningsAreFindings()
{
    const ThemeRepository repository;
    const QString bad = repository.addTheme(text("Bad"));
    QMap<QString, Severity> rules;
    for (const Finding &finding : checkTheme(bad)) {
        rules.insert(finding.rule, Severity::Warning);
    }
    QVERIFY(!rules.isEmpty());
    const Printed printed = check({bad}, ReportFormat::Text, rules);
    QVERIFY(printed.output.contains(text(" warning: ")));
    QVERIFY(!printed.output.contains(text(" error: ")));
    QCOMPARE(printed.exitCode, int(Findings));
}

void CheckCommandTest::rulesCanBeSwitchedOff()
{
    const ThemeRepository repository;
    const QString bad = repository.addTheme(text("Bad"));
    QMap<QString, Severity> rules;
    for (const Finding &finding : checkTheme(bad)) {
        rules.insert(finding.rule, Severity::Off);
    }
    QVERIFY(!rules.isEmpty());
    const Printed printed = check({bad}, ReportFormat::Text, rules);
    QCOMPARE(printed.output, text("No findings in 1 theme\n"));
    QCOMPARE(printed.exitCode, int(Fine));
}

void CheckCommandTest::severalThemesMakeOneReport()
{
    const ThemeRepository repository;
    const QStringList directories{repository.addTheme(text("First")),
                                  repository.addTheme(text("Second"))};
    const Printed printed = check(directories, ReportFormat::Json);
    const QJsonObject report = QJsonDocument::fromJson(printed.output.toUtf8()).object();
    QCOMPARE(report[text("summary")].toObject()[text("themes")].toInt(), 2);
    for (const QString &directory : directories) {
        const QJsonArray findings = report[text("findings")].toArray();
        const bool named =
            std::any_of(findings.begin(), findings.end(), [&directory](const QJsonValue &finding) {
                return finding[text("file")].toString().startsWith(directory);
            });
        QVERIFY2(named, qPrintable(directory));
    }
    QCOMPARE(printed.exitCode, int(Findings));
}

void CheckCommandTest::anUnreadableThemeLeavesTheOthers()
{
    const ThemeRepository repository;
    const QString missing = repository.path(text("Missing"));
    const QString bad = repository.addTheme(text("Bad"));
    const Printed printed = check({missing, bad});
    QCOMPARE(printed.output, check({bad}).output);
    QVERIFY(printed.output.endsWith(text(" in 1 theme\n")));
    QVERIFY2(printed.problems.startsWith(text("mox-theme: ")), qPrintable(printed.problems));
    QVERIFY(printed.problems.contains(missing));
    QCOMPARE(printed.problems.count(QLatin1Char('\n')), 1);
    QCOMPARE(printed.exitCode, int(CannotRun));
}

void CheckCommandTest::nothingIsReportedWithoutATheme()
{
    const ThemeRepository repository;
    const Printed printed =
        check({repository.path(text("A")), repository.path(text("B"))}, ReportFormat::Sarif);
    QCOMPARE(printed.output, QString());
    QCOMPARE(printed.problems.count(QLatin1Char('\n')), 2);
    QCOMPARE(printed.exitCode, int(CannotRun));
}

QTEST_MAIN(CheckCommandTest)
#include "CheckCommandTest.moc"
