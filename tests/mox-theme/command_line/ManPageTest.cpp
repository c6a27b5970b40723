#include <QtTest/QtTest>

#include <command_line/CommandTable.h>
#include <text/Literals.h>

using namespace TARN::ThemeTool;

namespace {

// What the page lists: the options of each command, those of the tool itself under no name.
using Listing = QMap<QString, QStringList>;

Listing listedOnThePage()
{
    QFile file(QStringLiteral(MOX_MAN_PAGE));
    Listing listing;
    if (!file.open(QIODevice::ReadOnly)) {
        return listing;
    }
    QString command;
    for (const QString &line : QString::fromUtf8(file.readAll()).split(u'\n')) {
        if (line.startsWith(".Ss "_s)) {
            command = line.mid(4);
            listing.insert(command, {});
        } else if (line.startsWith(".It Fl "_s)) {
            // "h , -help" or "-out Ar dir"
            for (const QString &name : line.mid(7).section(" Ar "_s, 0, 0).split(" , "_s)) {
                listing[command].append(u'-' + name);
            }
        }
    }
    return listing;
}

QStringList optionNames(const CommandDescription &command)
{
    QStringList names;
    for (const CommandDescription::Option &option : command.options) {
        names += option.names;
    }
    return names;
}

Listing known()
{
    Listing listing = {{QString(), optionNames(toolDescription())}};
    for (const CommandDescription &command : commandDescriptions()) {
        listing.insert(command.name, optionNames(command));
    }
    return listing;
}

} // namespace

class ManPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsTheCommandsAndOptionsOfTheTool();
    void isFormattedWithoutWarnings();
};

void ManPageTest::listsTheCommandsAndOptionsOfTheTool()
{
    const Listing page = listedOnThePage();
    const Listing tool = known();
    QCOMPARE(page.keys(), tool.keys());
    for (const QString &command : tool.keys()) {
        QCOMPARE(page.value(command), tool.value(command));
    }
}

void ManPageTest::isFormattedWithoutWarnings()
{
    const QString groff = QStandardPaths::findExecutable("groff"_s);
    if (groff.isEmpty()) {
        QSKIP("groff is not installed");
    }
    QProcess process;
    process.start(groff, {"-mandoc"_s, "-Tutf8"_s, "-ww"_s, QStringLiteral(MOX_MAN_PAGE)});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 0);
    QCOMPARE(QString::fromUtf8(process.readAllStandardError()), QString());
    QVERIFY(QString::fromUtf8(process.readAllStandardOutput()).contains("legible"_s));
}

QTEST_GUILESS_MAIN(ManPageTest)
#include "ManPageTest.moc"
