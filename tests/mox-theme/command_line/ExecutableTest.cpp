#include <QtTest/QtTest>

#include <text/Literals.h>

using TARN::ThemeTool::operator""_s;

namespace {

struct Run
{
    int exitCode = -1;
    QString output;
    QString errors;
};

// Runs the tool as on a machine without a display, with nothing but what is given in its
// environment.
Run run(const QStringList &arguments, const QStringList &environment = {})
{
    QProcess process;
    // What a sanitizer is told to leave alone holds for the tool as well.
    const QString suppressions = "LSAN_OPTIONS="_s + qEnvironmentVariable("LSAN_OPTIONS");
    process.setEnvironment(environment.isEmpty() ? environment
                                                 : environment + QStringList{suppressions});
    process.start(QStringLiteral(MOX_THEME), arguments);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit) {
        return {};
    }
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

} // namespace

class ExecutableTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void helpAndVersionGoToTheOutput();
    void nothingAskedForIsGuidedOnTheErrorStream();
    void scriptsGoToTheOutput();
    void mistakesAreOneLineOnTheErrorStream_data();
    void mistakesAreOneLineOnTheErrorStream();
    void anyLocaleReadsNames_data();
    void anyLocaleReadsNames();
    void whatNeedsNoApplicationIgnoresABrokenPlatform();
};

void ExecutableTest::helpAndVersionGoToTheOutput()
{
    for (const QString &argument : {"--help"_s, "-h"_s, "--version"_s}) {
        const Run result = run({argument});
        QCOMPARE(result.exitCode, 0);
        QCOMPARE(result.errors, QString());
        QVERIFY(result.output.contains("mox-theme "_s));
        QVERIFY(result.output.endsWith(u'\n'));
    }
    QCOMPARE(run({"check"_s, "--help"_s}).exitCode, 0);
}

void ExecutableTest::nothingAskedForIsGuidedOnTheErrorStream()
{
    const Run result = run({});
    QCOMPARE(result.exitCode, 2);
    QCOMPARE(result.output, QString());
    QCOMPARE(result.errors, run({"--help"_s}).output);
}

void ExecutableTest::scriptsGoToTheOutput()
{
    for (const QString &shell : {"bash"_s, "zsh"_s, "fish"_s}) {
        const Run result = run({"completion"_s, shell});
        QCOMPARE(result.exitCode, 0);
        QCOMPARE(result.errors, QString());
        QVERIFY(result.output.contains(shell + " completion for mox-theme"_s));
    }
}

void ExecutableTest::mistakesAreOneLineOnTheErrorStream_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("culprit");
    QTest::newRow("command") << QStringList("chek"_s) << "'chek'"_s;
    QTest::newRow("option") << QStringList({"check"_s, "a"_s, "--nonsense"_s}) << "'--nonsense'"_s;
    QTest::newRow("value") << QStringList({"new"_s, "a"_s, "--accent"_s, "12"_s}) << "'12'"_s;
    QTest::newRow("argument") << QStringList("build"_s) << "TOKENS"_s;
    QTest::newRow("several lines")
        << QStringList({"check"_s, "a"_s, "--rule"_s, "a\nb\r=off"_s}) << "'a\\x0ab\\x0d'"_s;
    QTest::newRow("escape codes") << QStringList("\033[31mred"_s) << "\\x1b[31mred"_s;
    QTest::newRow("folder") << QStringList({"check"_s, "/no/such/theme"_s}) << "/no/such/theme"_s;
    QTest::newRow("folder to show")
        << QStringList({"preview"_s, "/no/such/theme"_s}) << "/no/such/theme"_s;
}

void ExecutableTest::mistakesAreOneLineOnTheErrorStream()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, culprit);
    const Run result = run(arguments);
    QCOMPARE(result.exitCode, 2);
    QCOMPARE(result.output, QString());
    QVERIFY2(result.errors.startsWith("mox-theme: "_s), qPrintable(result.errors));
    QVERIFY2(result.errors.contains(culprit), qPrintable(result.errors));
    QCOMPARE(result.errors.count(u'\n'), 1);
    QVERIFY(result.errors.endsWith(u'\n'));
    QVERIFY(!result.errors.contains(u'\033'));
}

void ExecutableTest::anyLocaleReadsNames_data()
{
    QTest::addColumn<QString>("locale");
    QTest::newRow("none") << "C"_s;
    QTest::newRow("UTF-8") << "C.UTF-8"_s;
}

void ExecutableTest::anyLocaleReadsNames()
{
    QFETCH(const QString, locale);
    const Run result = run({"new"_s, "A"_s, "--accent"_s, "grün"_s}, {"LC_ALL="_s + locale});
    QVERIFY2(result.errors.contains("'grün'"_s), qPrintable(result.errors));
}

void ExecutableTest::whatNeedsNoApplicationIgnoresABrokenPlatform()
{
    const QStringList broken = {"QT_QPA_PLATFORM=nonsense"_s};
    QCOMPARE(run({"--help"_s}, broken).exitCode, 0);
    QCOMPARE(run({"completion"_s, "zsh"_s}, broken).exitCode, 0);
    QCOMPARE(run({"check"_s}, broken).exitCode, 2);
}

QTEST_GUILESS_MAIN(ExecutableTest)
#include "ExecutableTest.moc"
