#include <theme/BaseThemeSettings.h>

#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#include <commands/Commands.h>
#include <memory>
#include <mox-theme/support/Printed.h>
#include <mox-theme/support/SchemeFiles.h>
#include <support/Text.h>

using namespace TARN::ThemeTool;

namespace {

Printed import(const ImportOptions &options)
{
    return printedBy([&options] { return runCommand(options); });
}

} // namespace

/// What the command "import" prints, writes and returns.
class ImportCommandTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void writesATheme();
    void tellsWhatItMoved();
    void nameCanBeGiven();
    void namesBecomeFolderNames_data();
    void namesBecomeFolderNames();
    void kindIsDecidedByTheContent();
    void anExistingFolderIsLeftAlone();
    void forceReplacesATheme();
    void unusableFilesAreNamed_data();
    void unusableFilesAreNamed();
    void unreadableFilesAreNamed();

private:
    QString write(const QString &name, const QByteArray &content) const;
    ImportOptions options(const QString &file) const;
    QStringList written() const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void ImportCommandTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

QString ImportCommandTest::write(const QString &name, const QByteArray &content) const
{
    const QString path = m_folder->filePath(name);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("cannot write %s", qPrintable(path));
    }
    return path;
}

/// Returns the options to import \a file into the folder "out".
ImportOptions ImportCommandTest::options(const QString &file) const
{
    ImportOptions result;
    result.file = file;
    result.out = m_folder->filePath(text("out"));
    return result;
}

/// Returns the folders in the folder "out".
QStringList ImportCommandTest::written() const
{
    return QDir(m_folder->filePath(text("out")))
        .entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot);
}

void ImportCommandTest::writesATheme()
{
    const Printed printed = import(options(schemePath(text("HarbourDusk.colors"))));
    QCOMPARE(printed.problems, QString());
    QCOMPARE(printed.exitCode, int(Fine));
    const QString directory = m_folder->filePath(text("out/Harbour Dusk"));
    QVERIFY(printed.output.startsWith(text("Wrote the theme ") + directory));
    QVERIFY(printed.output.contains(
        text("\nIt is a dark theme, from the KDE colour scheme \"Harbour Dusk\"\n")));
    QCOMPARE(written(), QStringList{text("Harbour Dusk")});
    QVERIFY(QFile::exists(directory + text(".toml")));
    const TARN::BaseThemeSettings settings(directory + text("/theme.xml"));
    QCOMPARE(settings.getName(), text("Harbour Dusk"));
}

void ImportCommandTest::tellsWhatItMoved()
{
    const Printed printed = import(options(schemePath(text("Whisper.yaml"))));
    QCOMPARE(printed.exitCode, int(Fine));
    const QStringList allLines = printed.output.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    const int origin = allLines.indexOf(
        text("It is a dark theme, from the base16 scheme \"Whisper\" by A. Keeper"));
    QVERIFY(origin >= 0);
    const QStringList lines = allLines.mid(origin);
    const QRegularExpression line(
        text("^  \\w+Color: #[0-9A-F]{6} became #[0-9A-F]{6}, to be legible$"));
    for (const QString &moved : lines.mid(1)) {
        QVERIFY2(line.match(moved).hasMatch(), qPrintable(moved));
    }
    QCOMPARE(lines.filter(text("  ForegroundColor: #6C6C7E became #")).size(), 1);
    QCOMPARE(lines.filter(text("  BackgroundColor: ")).size(), 0);
}

void ImportCommandTest::nameCanBeGiven()
{
    ImportOptions named = options(schemePath(text("Whisper.yaml")));
    named.name = text("Murmur");
    QCOMPARE(import(named).exitCode, int(Fine));
    QCOMPARE(written(), QStringList{text("Murmur")});
}

void ImportCommandTest::namesBecomeFolderNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("folder");
    const auto row = [](const QString &name, const QString &folder) {
        QTest::newRow(qPrintable(name.left(20))) << name << folder;
    };
    row(text("Type/writer: \"No. 5\""), text("Type writer No. 5"));
    row(text("../../above"), text("above"));
    row(text(".hidden"), text("hidden"));
    row(text("a\tb\\c"), text("a b c"));
    row(QString::fromUtf8("Br\xC3\xBC"
                          "cke \xF0\x9F\x8C\x89"),
        QString::fromUtf8("Br\xC3\xBC"
                          "cke \xF0\x9F\x8C\x89"));
    row(QString(300, QLatin1Char('x')), QString(60, QLatin1Char('x')));
    // Nothing is left of it, so that the file's name has to do.
    row(text("/ ... /"), text("file"));
}

void ImportCommandTest::namesBecomeFolderNames()
{
    QFETCH(QString, name);
    const QByteArray content =
        "[General]\nName=" + name.toUtf8() + "\n[Colors:Window]\nBackgroundNormal=20,24,28\n";
    QCOMPARE(import(options(write(text("file.colors"), content))).exitCode, int(Fine));
    QFETCH(QString, folder);
    QCOMPARE(written(), QStringList{folder});
}

void ImportCommandTest::kindIsDecidedByTheContent()
{
    const QString yaml = write(text("a.colors"), schemeContent(text("PlumOrchard.yaml")));
    const QString kde = write(text("b.yaml"), schemeContent(text("FrostedGlass.colors")));
    QCOMPARE(import(options(yaml)).exitCode, int(Fine));
    QCOMPARE(import(options(kde)).exitCode, int(Fine));
    QCOMPARE(written(), (QStringList{text("Frosted Glass"), text("Plum Orchard")}));
}

void ImportCommandTest::anExistingFolderIsLeftAlone()
{
    const QString folder = m_folder->filePath(text("out/Whisper"));
    QVERIFY(QDir().mkpath(folder));
    write(text("out/Whisper/config.xml"), "<Config/>");
    const Printed printed = import(options(schemePath(text("Whisper.yaml"))));
    QCOMPARE(printed.exitCode, int(CannotRun));
    QCOMPARE(printed.output, QString());
    QCOMPARE(printed.problems,
             text("mox-theme: %1 is there already; --force writes over it\n").arg(folder));
    QCOMPARE(QDir(folder).entryList(QDir::Files), QStringList{text("config.xml")});
}

void ImportCommandTest::forceReplacesATheme()
{
    ImportOptions whisper = options(schemePath(text("Whisper.yaml")));
    QCOMPARE(import(whisper).exitCode, int(Fine));
    const QString faulty = write(text("out/Whisper/config.xml"), "<Config/>");
    whisper.force = true;
    QCOMPARE(import(whisper).exitCode, int(Fine));
    QVERIFY(QFileInfo(faulty).size() > 1000);
}

void ImportCommandTest::unusableFilesAreNamed_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("problem");
    const QString neither = text(": neither a KDE colour scheme nor a base16 or base24 scheme");
    QTest::newRow("empty") << QByteArray() << neither;
    QTest::newRow("prose") << QByteArray("Dear diary,\n\nbase00 was blue.\n") << neither;
    QTest::newRow("binary") << QByteArray("\x7F"
                                          "ELF\0\1\2\3\0\0",
                                          10)
                            << neither;
    QTest::newRow("other INI") << QByteArray("[Desktop Entry]\nName=A\n") << neither;
    QTest::newRow("other YAML") << QByteArray("name: a\nlist: [1, 2]\n") << neither;
    QTest::newRow("not YAML") << QByteArray("name: a\npalette:\n  base00: [\n")
                              << text(":4:1: not YAML: ");
    QTest::newRow("YAML colour") << QByteArray("palette:\n  base00: reddish\n")
                                 << text(":2:11: base00: \"reddish\" is not a colour");
    QTest::newRow("missing colours")
        << QByteArray("base00: \"111111\"\n") << text(": missing: base01, base02, ");
    QTest::newRow("KDE colour") << QByteArray("[Colors:Window]\nBackgroundNormal=1,2\n")
                                << text(":2: BackgroundNormal: \"1,2\" is not a colour");
    QTest::newRow("no background") << QByteArray("[Colors:Window]\nForegroundNormal=1,2,3\n")
                                   << text(": no background colour is given");
    QTest::newRow("too large") << QByteArray(2 * 1024 * 1024, '#')
                               << text(": is too large for a colour scheme");
}

void ImportCommandTest::unusableFilesAreNamed()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, problem);
    const QString path = write(text("scheme"), content);
    const Printed printed = import(options(path));
    QCOMPARE(printed.exitCode, int(CannotRun));
    QCOMPARE(printed.output, QString());
    QVERIFY2(printed.problems.startsWith(text("mox-theme: ") + path + problem),
             qPrintable(printed.problems));
    QCOMPARE(printed.problems.count(QLatin1Char('\n')), 1);
    QCOMPARE(written(), QStringList());
}

void ImportCommandTest::unreadableFilesAreNamed()
{
    const QString missing = m_folder->filePath(text("missing.yaml"));
    const Printed printed = import(options(missing));
    QCOMPARE(printed.exitCode, int(CannotRun));
    QCOMPARE(printed.problems, text("mox-theme: %1: does not exist\n").arg(missing));
    QCOMPARE(import(options(m_folder->path())).problems,
             text("mox-theme: %1: is not a file\n").arg(m_folder->path()));
    QCOMPARE(written(), QStringList());
}

QTEST_MAIN(ImportCommandTest)
#include "ImportCommandTest.moc"
