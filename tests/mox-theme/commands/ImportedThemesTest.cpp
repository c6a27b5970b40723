#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#include <check/Check.h>
#include <commands/Commands.h>
#include <mox-theme/support/Printed.h>
#include <mox-theme/support/SchemeFiles.h>
#include <support/Text.h>

using namespace TARN::ThemeTool;

/// What the themes that schemes become are worth.
class ImportedThemesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void passTheCheck_data();
    void passTheCheck();
};

void ImportedThemesTest::passTheCheck_data()
{
    QTest::addColumn<QString>("name");
    const QStringList names = schemeNames();
    QCOMPARE(names.size(), 20);
    for (const QString &name : names) {
        QTest::newRow(qPrintable(name)) << name;
    }
}

void ImportedThemesTest::passTheCheck()
{
    QFETCH(QString, name);
    const QTemporaryDir folder;
    ImportOptions options;
    options.file = schemePath(name);
    options.name = text("Theme");
    options.out = folder.path();
    const Printed printed = printedBy([&options] { return runCommand(options); });
    QCOMPARE(printed.problems, QString());
    QCOMPARE(printed.exitCode, int(Fine));

    CheckSettings settings;
    settings.all = true;
    QString findings;
    for (const Finding &finding : checkTheme(folder.filePath(text("Theme")), settings)) {
        findings += text("\n%1:%2: %3: %4")
                        .arg(finding.file)
                        .arg(finding.line)
                        .arg(finding.rule, finding.text);
    }
    QVERIFY2(findings.isEmpty(), qPrintable(findings));
}

QTEST_MAIN(ImportedThemesTest)
#include "ImportedThemesTest.moc"
