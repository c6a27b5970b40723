#include <QtTest/QtTest>

#include <CommandLine.h>

using namespace TARN::Gallery;

class CommandLineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingGivenAsksForTheWindow();
    void valuesAreTakenFromTheNextArgumentOrBehindEquals();
    void helpWinsOverLaterMistakes();
    void mistakesAreNamed_data();
    void mistakesAreNamed();
    void foreignArgumentsAreKept();
};

void CommandLineTest::nothingGivenAsksForTheWindow()
{
    const CommandLine result = parseCommandLine({});
    QVERIFY(result.action == CommandLine::Action::ShowWindow);
    QCOMPARE(result.theme, QString());
    QCOMPARE(result.repository, QString());
    QCOMPARE(result.scale, 0);
    QCOMPARE(result.error, QString());
    QCOMPARE(unknownArgumentError(result), QString());
}

void CommandLineTest::valuesAreTakenFromTheNextArgumentOrBehindEquals()
{
    const QString theme = QStringLiteral("Light");
    const QString repository = QStringLiteral("/srv/my=themes");
    const QString folder = QStringLiteral("shots");
    const QStringList separate = {QStringLiteral("--theme"),
                                  theme,
                                  QStringLiteral("--theme-repository"),
                                  repository,
                                  QStringLiteral("--screenshot"),
                                  folder,
                                  QStringLiteral("--scale"),
                                  QStringLiteral("2"),
                                  QStringLiteral("--mode"),
                                  QStringLiteral("default")};
    const QStringList joined = {QStringLiteral("--mode=default"),
                                QStringLiteral("--scale=2"),
                                QString(QStringLiteral("--screenshot=") + folder),
                                QString(QStringLiteral("--theme-repository=") + repository),
                                QString(QStringLiteral("--theme=") + theme)};
    for (const QStringList &arguments : {separate, joined}) {
        const CommandLine result = parseCommandLine(arguments);
        QCOMPARE(result.error, QString());
        QVERIFY(result.action == CommandLine::Action::WriteScreenshots);
        QCOMPARE(result.theme, theme);
        QCOMPARE(result.repository, repository);
        QCOMPARE(result.screenshotFolder, folder);
        QCOMPARE(result.scale, 2);
        QVERIFY(!result.isComplete);
        QVERIFY(result.unknown.isEmpty());
    }
}

void CommandLineTest::helpWinsOverLaterMistakes()
{
    for (const QString &name : {QStringLiteral("-h"), QStringLiteral("--help")}) {
        const CommandLine result = parseCommandLine({name, QStringLiteral("--theme")});
        QVERIFY(result.action == CommandLine::Action::PrintHelp);
        QCOMPARE(result.error, QString());
    }
    QVERIFY(parseCommandLine({QStringLiteral("--version")}).action ==
            CommandLine::Action::PrintVersion);
}

void CommandLineTest::mistakesAreNamed_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("culprit");
    QTest::newRow("value missing at the end") << "--theme"
                                              << "--theme";
    QTest::newRow("option in place of a value") << "--theme --scale 2"
                                                << "--theme";
    QTest::newRow("empty value") << "--screenshot="
                                 << "--screenshot";
    QTest::newRow("scale too large") << "--scale 3"
                                     << "3";
    QTest::newRow("scale is no number") << "--scale 2x"
                                        << "2x";
    QTest::newRow("given twice") << "--theme Dark --theme=Light"
                                 << "--theme";
    QTest::newRow("value for a switch") << "--help=me"
                                        << "--help";
}

void CommandLineTest::mistakesAreNamed()
{
    QFETCH(const QString, arguments);
    QFETCH(const QString, culprit);
    const CommandLine result = parseCommandLine(arguments.split(u' '));
    QVERIFY2(result.error.contains(QString(u'\'' + culprit + u'\'')), qPrintable(result.error));
    QVERIFY(!result.error.contains(u'\n'));
}

void CommandLineTest::foreignArgumentsAreKept()
{
    const CommandLine result =
        parseCommandLine({QStringLiteral("-platform"), QStringLiteral("offscreen"),
                          QStringLiteral("--theme"), QStringLiteral("Light")});
    QCOMPARE(result.unknown,
             QStringList({QStringLiteral("-platform"), QStringLiteral("offscreen")}));
    QCOMPARE(result.theme, QStringLiteral("Light"));
    QCOMPARE(unknownArgumentError(result), QStringLiteral("unknown option '-platform'"));
    QCOMPARE(unknownArgumentError(parseCommandLine({QStringLiteral("picture.png")})),
             QStringLiteral("unexpected argument 'picture.png'"));
}

QTEST_MAIN(CommandLineTest)
#include "CommandLineTest.moc"
