#include <QtCore/QRandomGenerator>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#include <check/Check.h>
#include <commands/Commands.h>
#include <generator/files/ThemeWriter.h>
#include <generator/recipes/ThemeDefinition.h>
#include <mox-theme/support/Printed.h>
#include <mox-theme/support/SmallTheme.h>
#include <support/Text.h>

using namespace TARN::ThemeTool;

Q_DECLARE_METATYPE(TARN::ThemeTool::Base)

namespace {

const QString tokenFolder = QStringLiteral(MOX_TOKENS);
const QString shippedRepository = QStringLiteral(MOX_SHIPPED_THEMES);

QString describe(const QVector<Finding> &findings)
{
    QStringList lines;
    for (const Finding &finding : findings) {
        lines += text("%1:%2: %3").arg(finding.file, QString::number(finding.line), finding.text);
    }
    return lines.join(QLatin1Char('\n'));
}

} // namespace

/// The themes that the library ships, and those that the tool makes of any accent.
class ShippedTokensTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyTokenFileHasItsTheme();
    void tokenFilesAreShort_data() { addThemeRows(); }
    void tokenFilesAreShort();
    void themesAreMadeOfTheirTokens_data() { addThemeRows(); }
    void themesAreMadeOfTheirTokens();
    void themesHaveNoFindings_data() { addThemeRows(); }
    void themesHaveNoFindings();
    void anyAccentMakesAThemeWithoutFindings_data();
    void anyAccentMakesAThemeWithoutFindings();

private:
    static void addThemeRows();
};

void ShippedTokensTest::addThemeRows()
{
    QTest::addColumn<QString>("theme");
    for (const char *theme : {"Dark", "Light", "HighContrast"}) {
        QTest::newRow(theme) << QString::fromLatin1(theme);
    }
}

void ShippedTokensTest::everyTokenFileHasItsTheme()
{
    QStringList tokenFiles;
    for (const QFileInfo &file : QDir(tokenFolder).entryInfoList({text("*.toml")})) {
        tokenFiles += file.completeBaseName();
    }
    QCOMPARE(tokenFiles,
             QDir(shippedRepository).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name));
}

void ShippedTokensTest::tokenFilesAreShort()
{
    QFETCH(const QString, theme);
    constexpr int mostLines = 80;
    QFile file(tokenFolder + QLatin1Char('/') + theme + text(".toml"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().count('\n') <= mostLines);
}

void ShippedTokensTest::themesAreMadeOfTheirTokens()
{
    QFETCH(const QString, theme);
    const QTemporaryDir folder;
    BuildOptions options;
    options.tokens = tokenFolder + QLatin1Char('/') + theme + text(".toml");
    options.out = folder.filePath(theme);
    const Printed printed = printedBy([&options] { return runCommand(options); });
    QCOMPARE(printed.problems, QString());

    const auto built = filesBelow(options.out);
    const auto shipped = filesBelow(shippedRepository + QLatin1Char('/') + theme);
    QCOMPARE(shipped.keys(), built.keys());
    for (auto file = built.cbegin(); file != built.cend(); ++file) {
        QVERIFY2(shipped.value(file.key()) == file.value(), qPrintable(file.key()));
    }
}

void ShippedTokensTest::themesHaveNoFindings()
{
    QFETCH(const QString, theme);
    const auto findings = checkTheme(shippedRepository + QLatin1Char('/') + theme);
    QVERIFY2(findings.isEmpty(), qPrintable(describe(findings)));
}

void ShippedTokensTest::anyAccentMakesAThemeWithoutFindings_data()
{
    QTest::addColumn<Base>("base");
    QTest::addColumn<int>("count");
    QTest::newRow("dark") << Base::Dark << 70;
    QTest::newRow("light") << Base::Light << 70;
    QTest::newRow("high contrast") << Base::HighContrast << 60;
}

void ShippedTokensTest::anyAccentMakesAThemeWithoutFindings()
{
    QFETCH(const Base, base);
    QFETCH(const int, count);
    const QTemporaryDir folder;
    QRandomGenerator random(static_cast<quint32>(base) + 1);
    for (int i = 0; i < count; ++i) {
        Tokens tokens;
        tokens.name = text("Any");
        tokens.base = base;
        tokens.accent = QColor::fromRgb(random.generate());
        QCOMPARE(writeTheme(defineTheme(tokens), folder.filePath(text("Any"))), QString());
        const auto findings = checkTheme(folder.filePath(text("Any")));
        QVERIFY2(findings.isEmpty(),
                 qPrintable(tokens.accent.name() + QLatin1Char('\n') + describe(findings)));
    }
}

QTEST_MAIN(ShippedTokensTest)
#include "ShippedTokensTest.moc"
