#include <QtCore/QDir>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#include <check/model/RuleTable.h>
#include <check/reports/Reports.h>
#include <mox-theme/support/JsonSchema.h>
#include <support/Text.h>

using namespace TARN::ThemeTool;

Q_DECLARE_METATYPE(TARN::ThemeTool::ReportFormat)

namespace {

const QString strangeFile = QString::fromUtf8("thèmes/My Theme: 50%, #1/config.xml");

Finding finding(const char *rule, Severity severity, const QString &file, int line = 0,
                int column = 0)
{
    Finding finding;
    finding.rule = text(rule);
    finding.severity = severity;
    finding.file = file;
    finding.line = line;
    finding.column = column;
    finding.text = text("Something is wrong");
    return finding;
}

Finding suggesting(Finding finding, const QString &suggestion)
{
    finding.suggestion = suggestion;
    return finding;
}

/// Findings of every shape: with and without a position and a suggestion, below the current folder
/// and elsewhere, under a strange path.
QVector<Finding> everyShape()
{
    return {
        finding("low-contrast", Severity::Error, strangeFile, 12, 5),
        suggesting(finding("unused-entry", Severity::Warning, strangeFile, 3),
                   QString::fromUtf8("Remove “it”\nor\tuse it")),
        finding("missing-file", Severity::Error, QDir::current().absoluteFilePath(text("Dark"))),
        finding("missing-name", Severity::Error, text("/else where/theme.xml"), 2, 1),
        finding("internal-value", Severity::Warning, text("../Light/config.xml"), 7, 70000),
    };
}

QJsonObject jsonReport(const QVector<Finding> &findings, ReportFormat format)
{
    QJsonParseError error{};
    const QByteArray document = report(findings, format).toUtf8();
    const QJsonObject object = QJsonDocument::fromJson(document, &error).object();
    return error.error == QJsonParseError::NoError ? object : QJsonObject();
}

QJsonObject sarifRun(const QVector<Finding> &findings)
{
    return jsonReport(findings, ReportFormat::Sarif)[text("runs")].toArray()[0].toObject();
}

QJsonObject sarifResult(const Finding &finding)
{
    return sarifRun({finding})[text("results")].toArray()[0].toObject();
}

QJsonObject sarifLocation(const Finding &finding)
{
    return sarifResult(finding)[text("locations")]
        .toArray()[0]
        .toObject()[text("physicalLocation")]
        .toObject();
}

QJsonObject artifact(const QString &file)
{
    return sarifLocation(finding("low-contrast", Severity::Error, file))[text("artifactLocation")]
        .toObject();
}

} // namespace

/// What findings look like in each format.
class ReportsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void textHasOneLinePerFinding();
    void textPutsFilesTogether();
    void textCounts_data();
    void textCounts();
    void textCommandsNoTerminal();
    void whatIsOffIsLeftOut_data();
    void whatIsOffIsLeftOut();

    void jsonHoldsEverything();
    void jsonFitsItsSchema_data();
    void jsonFitsItsSchema();

    void sarifFitsTheStandard_data();
    void sarifFitsTheStandard();
    void sarifDescribesEveryRule();
    void sarifResultsReferToTheirRules();
    void sarifMessagesAreSentences();
    void sarifPlaces_data();
    void sarifPlaces();
    void sarifPositionsAreThoseKnown();
    void theStandardIsStrict();

    void githubAnnotatesLines();
    void githubEscapes();
    void githubSaysNothingWithoutFindings();

private:
    QTemporaryDir m_directory;
};

void ReportsTest::initTestCase()
{
    QVERIFY(QDir::setCurrent(m_directory.path()));
}

void ReportsTest::textHasOneLinePerFinding()
{
    const QVector<Finding> findings{
        suggesting(finding("low-contrast", Severity::Error, strangeFile, 12, 5),
                   text("Lighten it")),
        finding("unused-entry", Severity::Warning, strangeFile, 13),
        finding("missing-file", Severity::Error, strangeFile),
    };
    const QString expected =
        strangeFile +
        text(":12:5: error: Something is wrong [low-contrast]\n"
             "    Lighten it\n") +
        strangeFile + text(":13: warning: Something is wrong [unused-entry]\n") + strangeFile +
        text(": error: Something is wrong [missing-file]\n"
             "\n"
             "2 errors, 1 warning in 1 theme\n");
    QCOMPARE(report(findings, ReportFormat::Text), expected);
}

void ReportsTest::textPutsFilesTogether()
{
    const QVector<Finding> findings{
        finding("unused-entry", Severity::Warning, text("b"), 9),
        finding("unused-entry", Severity::Warning, text("a"), 1),
        finding("unused-entry", Severity::Warning, text("./b"), 2),
    };
    const QString expected = text("b:9: warning: Something is wrong [unused-entry]\n"
                                  "b:2: warning: Something is wrong [unused-entry]\n"
                                  "\n"
                                  "a:1: warning: Something is wrong [unused-entry]\n"
                                  "\n"
                                  "3 warnings in 2 themes\n");
    QCOMPARE(report(findings, ReportFormat::Text, 2), expected);
}

void ReportsTest::textCounts_data()
{
    QTest::addColumn<int>("errors");
    QTest::addColumn<int>("warnings");
    QTest::addColumn<int>("themes");
    QTest::addColumn<QString>("summary");

    QTest::newRow("nothing") << 0 << 0 << 1 << text("No findings in 1 theme");
    QTest::newRow("nothing in several") << 0 << 0 << 3 << text("No findings in 3 themes");
    QTest::newRow("errors") << 1 << 0 << 1 << text("1 error in 1 theme");
    QTest::newRow("warnings") << 0 << 2 << 2 << text("2 warnings in 2 themes");
    QTest::newRow("both") << 3 << 1 << 1 << text("3 errors, 1 warning in 1 theme");
}

void ReportsTest::textCounts()
{
    QFETCH(int, errors);
    QFETCH(int, warnings);
    QFETCH(int, themes);
    QFETCH(QString, summary);

    QVector<Finding> findings;
    findings.insert(0, errors, finding("low-contrast", Severity::Error, text("a")));
    findings.insert(0, warnings, finding("unused-entry", Severity::Warning, text("a")));
    const QStringList lines = report(findings, ReportFormat::Text, themes).split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), findings.isEmpty() ? 2 : findings.size() + 3);
    QCOMPARE(lines.at(lines.size() - 2), summary);
    QCOMPARE(lines.last(), QString());
}

void ReportsTest::textCommandsNoTerminal()
{
    Finding hostile = finding("low-contrast", Severity::Error, text("a\033[2Jb\nc"), 1);
    hostile.text = text("No colour \033]0;title\007\r\n");
    hostile.suggestion = text("Write\033[1m it");
    const QString written = report({hostile}, ReportFormat::Text);
    QVERIFY(!written.contains(QLatin1Char('\033')));
    QVERIFY(!written.contains(QLatin1Char('\007')));
    QVERIFY(!written.contains(QLatin1Char('\r')));
    QCOMPARE(written.count(QLatin1Char('\n')), 4);
    QVERIFY(written.startsWith(QString::fromUtf8("a\\x1b[2Jb\\x0ac:1: error: ")));
}

void ReportsTest::whatIsOffIsLeftOut_data()
{
    QTest::addColumn<ReportFormat>("format");

    QTest::newRow("text") << ReportFormat::Text;
    QTest::newRow("json") << ReportFormat::Json;
    QTest::newRow("sarif") << ReportFormat::Sarif;
    QTest::newRow("github") << ReportFormat::Github;
}

void ReportsTest::whatIsOffIsLeftOut()
{
    QFETCH(ReportFormat, format);

    const Finding shown = finding("low-contrast", Severity::Error, text("a"), 1);
    const Finding off = finding("unused-entry", Severity::Off, text("b"), 2);
    QCOMPARE(report({off, shown, off}, format), report({shown}, format));
    QCOMPARE(report({off}, format), report({}, format));
    QVERIFY(report({shown}, format) != report({}, format));
}

void ReportsTest::jsonHoldsEverything()
{
    const QVector<Finding> findings{
        suggesting(finding("low-contrast", Severity::Error, strangeFile, 12, 5),
                   QString::fromUtf8("Use “it”\n")),
        finding("unused-entry", Severity::Warning, text("/else where/a")),
    };
    const QJsonDocument expected = QJsonDocument::fromJson(u8R"({
        "version": 1,
        "findings": [
            {
                "file": "thèmes/My Theme: 50%, #1/config.xml", "line": 12, "column": 5,
                "rule": "low-contrast", "severity": "error", "message": "Something is wrong",
                "suggestion": "Use “it”\n"
            },
            {
                "file": "/else where/a", "line": null, "column": null,
                "rule": "unused-entry", "severity": "warning", "message": "Something is wrong",
                "suggestion": null
            }
        ],
        "summary": { "themes": 1, "errors": 1, "warnings": 1 }
    })");
    QVERIFY(expected.isObject());
    QCOMPARE(jsonReport(findings, ReportFormat::Json), expected.object());
}

void ReportsTest::jsonFitsItsSchema_data()
{
    QTest::addColumn<bool>("empty");

    QTest::newRow("every shape") << false;
    QTest::newRow("no findings") << true;
}

void ReportsTest::jsonFitsItsSchema()
{
    QFETCH(bool, empty);

    const QVector<Finding> findings = empty ? QVector<Finding>() : everyShape();
    const QByteArray document = report(findings, ReportFormat::Json).toUtf8();
    QCOMPARE(schemaProblem(document, text(MOX_REPORT_SCHEMA)), QString());
}

void ReportsTest::sarifFitsTheStandard_data()
{
    jsonFitsItsSchema_data();
}

void ReportsTest::sarifFitsTheStandard()
{
    QFETCH(bool, empty);

    const QVector<Finding> findings = empty ? QVector<Finding>() : everyShape();
    QCOMPARE(sarifRun(findings)[text("results")].toArray().size(), findings.size());
    const QByteArray document = report(findings, ReportFormat::Sarif).toUtf8();
    QCOMPARE(schemaProblem(document, text(MOX_SARIF_SCHEMA)), QString());
}

void ReportsTest::sarifDescribesEveryRule()
{
    const QJsonObject driver = sarifRun({})[text("tool")].toObject()[text("driver")].toObject();
    const QJsonArray described = driver[text("rules")].toArray();
    QCOMPARE(described.size(), rules().size());
    for (int i = 0; i < described.size(); ++i) {
        const QJsonObject rule = described[i].toObject();
        QCOMPARE(rule[text("id")].toString(), rules()[i].name);
        const QString level =
            rule[text("defaultConfiguration")].toObject()[text("level")].toString();
        QCOMPARE(level == text("error"), rules()[i].severity == Severity::Error);
        QCOMPARE(level == text("warning"), rules()[i].severity == Severity::Warning);
    }
}

void ReportsTest::sarifResultsReferToTheirRules()
{
    for (const Rule &rule : rules()) {
        Finding found = finding("", Severity::Warning, text("a"));
        found.rule = rule.name;
        const QJsonObject result = sarifResult(found);
        QCOMPARE(result[text("ruleId")].toString(), rule.name);
        QCOMPARE(rules().value(result[text("ruleIndex")].toInt(-1)).name, rule.name);
        QCOMPARE(result[text("level")].toString(), text("warning"));
    }
    const Finding unknown = finding("made-up", Severity::Error, text("a"));
    QVERIFY(!sarifResult(unknown).contains(text("ruleIndex")));
}

void ReportsTest::sarifMessagesAreSentences()
{
    const auto message = [](const Finding &finding) {
        return sarifResult(finding)[text("message")].toObject()[text("text")].toString();
    };
    const Finding plain = finding("low-contrast", Severity::Error, text("a"));
    QCOMPARE(message(plain), text("Something is wrong."));
    QCOMPARE(message(suggesting(plain, text("Lighten it"))),
             text("Something is wrong. Lighten it."));
}

void ReportsTest::sarifPlaces_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("uri");
    QTest::addColumn<bool>("isRelative");

    QTest::newRow("below") << text("Dark/config.xml") << text("Dark/config.xml") << true;
    QTest::newRow("below, absolute")
        << m_directory.filePath(text("Dark/config.xml")) << text("Dark/config.xml") << true;
    QTest::newRow("below, roundabout")
        << text("./Light/../Dark/config.xml") << text("Dark/config.xml") << true;
    QTest::newRow("strange") << strangeFile
                             << text("th%C3%A8mes/My%20Theme%3A%2050%25%2C%20%231/config.xml")
                             << true;
    QTest::newRow("as if with a scheme") << text("a:b/c") << text("a%3Ab/c") << true;
    QTest::newRow("dots that do not lead up") << text("..a/b") << text("..a/b") << true;
    QTest::newRow("elsewhere") << QString::fromUtf8("/else where/ü 5%/a#1")
                               << text("file:///else%20where/%C3%BC%205%25/a%231") << false;
    const QString parent = QFileInfo(m_directory.path()).absolutePath();
    QTest::newRow("above") << text("../Dark/a b") << text("file://") + parent + text("/Dark/a%20b")
                           << false;
}

void ReportsTest::sarifPlaces()
{
    QFETCH(QString, file);
    QFETCH(QString, uri);
    QFETCH(bool, isRelative);

    const QJsonObject place = artifact(file);
    QCOMPARE(place[text("uri")].toString(), uri);
    QCOMPARE(place.contains(text("uriBaseId")), isRelative);
}

void ReportsTest::sarifPositionsAreThoseKnown()
{
    const auto region = [](int line, int column) {
        return sarifLocation(finding("low-contrast", Severity::Error, text("a"), line, column))
            .value(text("region"));
    };
    QVERIFY(region(0, 0).isUndefined());
    QCOMPARE(region(4, 0).toObject(), (QJsonObject{{text("startLine"), 4}}));
    QCOMPARE(region(4, 9).toObject(),
             (QJsonObject{{text("startLine"), 4}, {text("startColumn"), 9}}));
}

void ReportsTest::theStandardIsStrict()
{
    const QString log = report(everyShape(), ReportFormat::Sarif);
    const auto problem = [&log](const char *before, const char *after) {
        QString altered = log;
        altered.replace(text(before), text(after));
        return altered == log ? QString() : schemaProblem(altered.toUtf8(), text(MOX_SARIF_SCHEMA));
    };
    QVERIFY(!problem("\"2.1.0\"", "\"2.0.0\"").isEmpty());
    QVERIFY(!problem("\"startLine\": 12", "\"startLine\": 0").isEmpty());
    QVERIFY(!problem("\"ruleId\"", "\"rule\"").isEmpty());
    QVERIFY(!problem("My%20Theme", "My Theme").isEmpty());
}

void ReportsTest::githubAnnotatesLines()
{
    const QVector<Finding> findings{
        finding("low-contrast", Severity::Error, text("Dark/config.xml"), 12, 5),
        finding("unused-entry", Severity::Warning, text("Dark/config.xml"), 13),
        finding("missing-file", Severity::Error, text("Dark/theme.xml")),
    };
    QCOMPARE(report(findings, ReportFormat::Github),
             text("::error file=Dark/config.xml,line=12,col=5,title=low-contrast::"
                  "Something is wrong\n"
                  "::warning file=Dark/config.xml,line=13,title=unused-entry::"
                  "Something is wrong\n"
                  "::error file=Dark/theme.xml,title=missing-file::Something is wrong\n"));
}

void ReportsTest::githubEscapes()
{
    Finding strange = finding("low-contrast", Severity::Error, strangeFile, 1);
    strange.text = QString::fromUtf8("“50%”, 1:2\r\n::error::no");
    strange.suggestion = text("Use %0A");
    QCOMPARE(report({strange}, ReportFormat::Github),
             QString::fromUtf8(
                 "::error file=thèmes/My Theme%3A 50%25%2C #1/config.xml,line=1,title=low-contrast"
                 "::“50%25”, 1:2%0D%0A::error::no%0AUse %250A\n"));
}

void ReportsTest::githubSaysNothingWithoutFindings()
{
    QCOMPARE(report({}, ReportFormat::Github), QString());
}

QTEST_GUILESS_MAIN(ReportsTest)
#include "ReportsTest.moc"
