#include <QtCore/QDir>
#include <QtCore/QJsonArray>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#include <check/model/RuleTable.h>
#include <mox-theme/support/FindingSamples.h>
#include <mox-theme/support/JsonSchema.h>
#include <support/Text.h>

using namespace TARN::ThemeTool;

namespace {

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

/// What findings look like in a SARIF log.
class SarifReportTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void fitsTheStandard_data();
    void fitsTheStandard();
    void describesEveryRule();
    void resultsReferToTheirRules();
    void messagesAreSentences();
    void places_data();
    void places();
    void positionsAreThoseKnown();
    void theStandardIsStrict();

private:
    QTemporaryDir m_directory;
};

void SarifReportTest::initTestCase()
{
    QVERIFY(QDir::setCurrent(m_directory.path()));
}

void SarifReportTest::fitsTheStandard_data()
{
    QTest::addColumn<bool>("empty");

    QTest::newRow("every shape") << false;
    QTest::newRow("no findings") << true;
}

void SarifReportTest::fitsTheStandard()
{
    QFETCH(bool, empty);

    const QVector<Finding> findings = empty ? QVector<Finding>() : everyShape();
    QCOMPARE(sarifRun(findings)[text("results")].toArray().size(), findings.size());
    const QByteArray document = report(findings, ReportFormat::Sarif).toUtf8();
    QCOMPARE(schemaProblem(document, text(MOX_SARIF_SCHEMA)), QString());
}

void SarifReportTest::describesEveryRule()
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

void SarifReportTest::resultsReferToTheirRules()
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

void SarifReportTest::messagesAreSentences()
{
    const auto message = [](const Finding &finding) {
        return sarifResult(finding)[text("message")].toObject()[text("text")].toString();
    };
    const Finding plain = finding("low-contrast", Severity::Error, text("a"));
    QCOMPARE(message(plain), text("Something is wrong."));
    QCOMPARE(message(suggesting(plain, text("Lighten it"))),
             text("Something is wrong. Lighten it."));
}

void SarifReportTest::places_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("uri");
    QTest::addColumn<bool>("isRelative");

    QTest::newRow("below") << text("Dark/config.xml") << text("Dark/config.xml") << true;
    QTest::newRow("below, absolute")
        << m_directory.filePath(text("Dark/config.xml")) << text("Dark/config.xml") << true;
    QTest::newRow("below, roundabout")
        << text("./Light/../Dark/config.xml") << text("Dark/config.xml") << true;
    QTest::newRow("strange") << strangeFile()
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

void SarifReportTest::places()
{
    QFETCH(QString, file);
    QFETCH(QString, uri);
    QFETCH(bool, isRelative);

    const QJsonObject place = artifact(file);
    QCOMPARE(place[text("uri")].toString(), uri);
    QCOMPARE(place.contains(text("uriBaseId")), isRelative);
}

void SarifReportTest::positionsAreThoseKnown()
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

void SarifReportTest::theStandardIsStrict()
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

QTEST_GUILESS_MAIN(SarifReportTest)
#include "SarifReportTest.moc"
