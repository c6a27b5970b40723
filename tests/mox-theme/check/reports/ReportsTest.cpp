#include <QtCore/QDir>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#include <check/reports/Reports.h>
#include <mox-theme/support/FindingSamples.h>
#include <mox-theme/support/JsonSchema.h>
#include <support/Text.h>

using namespace TARN::ThemeTool;

Q_DECLARE_METATYPE(TARN::ThemeTool::ReportFormat)

/// What findings look like for people, for programs and as annotations of a change.
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
    void textIsWrittenInInks();
    void whatIsOffIsLeftOut_data();
    void whatIsOffIsLeftOut();

    void jsonHoldsEverything();
    void jsonFitsItsSchema_data();
    void jsonFitsItsSchema();

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
        suggesting(finding("low-contrast", Severity::Error, strangeFile(), 12, 5),
                   text("Lighten it")),
        finding("unused-entry", Severity::Warning, strangeFile(), 13),
        finding("missing-file", Severity::Error, strangeFile()),
    };
    const QString expected =
        strangeFile() +
        text(":12:5: error: Something is wrong [low-contrast]\n"
             "    Lighten it\n") +
        strangeFile() + text(":13: warning: Something is wrong [unused-entry]\n") + strangeFile() +
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

void ReportsTest::textIsWrittenInInks()
{
    const QVector<Finding> findings{finding("low-contrast", Severity::Error, text("a"), 1)};
    const QString inked = report(findings, ReportFormat::Text, 1, Inks(Inks::Range::Named));
    QCOMPARE(inked, text("a:1: \033[1;31merror:\033[0m Something is wrong "
                         "[\033[1mlow-contrast\033[0m]\n\n"
                         "\033[1;31m1 error\033[0m in 1 theme\n"));
    QCOMPARE(report(findings, ReportFormat::Json, 1, Inks(Inks::Range::Named)),
             report(findings, ReportFormat::Json));
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
        suggesting(finding("low-contrast", Severity::Error, strangeFile(), 12, 5),
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
    Finding strange = finding("low-contrast", Severity::Error, strangeFile(), 1);
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
