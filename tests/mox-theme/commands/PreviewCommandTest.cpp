#include <QtGui/QImageReader>
#include <QtTest/QtTest>

#include <command_line/ProgramArguments.h>
#include <commands/Commands.h>
#include <mox-theme/support/Printed.h>
#include <support/Text.h>
#include <support/ThemeRepository.h>

using namespace TARN::ThemeTool;

namespace {

Printed preview(const QString &directory, const QString &out = QString(), bool watch = false)
{
    return printedBy([&] { return runCommand(PreviewOptions{directory, out, watch}); });
}

QStringList pngFiles(const QString &folder)
{
    return QDir(folder).entryList({text("*.png")});
}

} // namespace

/// What the command "preview" writes, prints and returns.
class PreviewCommandTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theSheetStandsBesideTheFolder();
    void theSheetStandsWhereItIsWanted();
    void unusableFoldersAreNamed_data();
    void unusableFoldersAreNamed();
    void anUnwritableFileIsNamed();
    void aWindowNeedsADisplay();
    void aWindowWritesNoPicture();

private:
    ThemeRepository m_repository;
    QByteArray m_program = "mox-theme";
    char *m_arguments[2] = {m_program.data(), nullptr};
};

void PreviewCommandTest::init()
{
    programArguments() = {1, m_arguments};
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        qunsetenv(name);
    }
    // Without one the toolkit has a warning of its own to give.
    qputenv("XDG_RUNTIME_DIR", m_repository.path().toLocal8Bit());
}

void PreviewCommandTest::theSheetStandsBesideTheFolder()
{
    QVERIFY(QFile::link(text(MOX_THEMES "/Dark"), m_repository.path(text("Probe"))));
    const Printed printed = preview(m_repository.path(text("Probe/")));
    const QString path = m_repository.path(text("Probe.png"));
    QCOMPARE(printed.problems, QString());
    QCOMPARE(printed.output, path + u'\n');
    QCOMPARE(printed.exitCode, int(Fine));
    QCOMPARE(QImageReader(path).format(), QByteArray("png"));
    QVERIFY(!QImage(path).isNull());
}

void PreviewCommandTest::theSheetStandsWhereItIsWanted()
{
    QVERIFY(QFile::link(text(MOX_THEMES "/Dark"), m_repository.path(text("Probe"))));
    const QString path = m_repository.write(text("sheets/sheet.picture"), "former");
    const Printed printed = preview(m_repository.path(text("Probe")), path);
    QCOMPARE(printed.problems, QString());
    QCOMPARE(printed.output, path + u'\n');
    QCOMPARE(printed.exitCode, int(Fine));
    QVERIFY(!QImage(path, "png").isNull());
    QCOMPARE(QDir(m_repository.path(text("sheets"))).entryList(QDir::Files).size(), 1);
    QCOMPARE(pngFiles(m_repository.path()), QStringList());
}

void PreviewCommandTest::unusableFoldersAreNamed_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("reason");
    QTest::newRow("nothing") << "Nothing"
                             << "is not a folder";
    QTest::newRow("a file") << "File"
                            << "is not a folder";
    QTest::newRow("an empty folder") << "Empty"
                                     << "theme.xml is missing";
    QTest::newRow("a broken theme") << "Broken"
                                    << "config.xml, line 1";
}

void PreviewCommandTest::unusableFoldersAreNamed()
{
    QFETCH(const QString, folder);
    QFETCH(const QString, reason);
    m_repository.write(text("File"), "text");
    m_repository.makeFolder(text("Empty"));
    m_repository.addTheme(text("Broken"));
    m_repository.write(text("Broken/config.xml"), "<Config>");
    const Printed printed = preview(m_repository.path(folder));
    QCOMPARE(printed.exitCode, int(CannotRun));
    QCOMPARE(printed.output, QString());
    QCOMPARE(printed.problems.count(u'\n'), 1);
    QVERIFY2(printed.problems.contains(m_repository.path(folder)), qPrintable(printed.problems));
    QVERIFY2(printed.problems.contains(reason), qPrintable(printed.problems));
    QCOMPARE(pngFiles(m_repository.path()), QStringList());
}

void PreviewCommandTest::anUnwritableFileIsNamed()
{
    QVERIFY(QFile::link(text(MOX_THEMES "/Dark"), m_repository.path(text("Probe"))));
    const QString path = m_repository.path(text("missing/sheet.png"));
    const Printed printed = preview(m_repository.path(text("Probe")), path);
    QCOMPARE(printed.exitCode, int(CannotRun));
    QCOMPARE(printed.output, QString());
    QCOMPARE(printed.problems.count(u'\n'), 1);
    QVERIFY2(printed.problems.contains(path), qPrintable(printed.problems));
}

void PreviewCommandTest::aWindowNeedsADisplay()
{
    const Printed printed = preview(text(MOX_THEMES "/Dark"), QString(), true);
    QCOMPARE(printed.exitCode, int(CannotRun));
    QCOMPARE(printed.output, QString());
    QCOMPARE(printed.problems.count(u'\n'), 1);
    QVERIFY2(printed.problems.contains(text("display")), qPrintable(printed.problems));
}

void PreviewCommandTest::aWindowWritesNoPicture()
{
    const QString path = m_repository.path(text("sheet.png"));
    const Printed printed = preview(text(MOX_THEMES "/Dark"), path, true);
    QCOMPARE(printed.exitCode, int(CannotRun));
    QCOMPARE(printed.problems.count(u'\n'), 1);
    QVERIFY2(printed.problems.contains(text("--out")), qPrintable(printed.problems));
    QVERIFY(!QFile::exists(path));
}

QTEST_APPLESS_MAIN(PreviewCommandTest)
#include "PreviewCommandTest.moc"
