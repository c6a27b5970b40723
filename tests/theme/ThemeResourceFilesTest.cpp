#include "ResourceFile.h"

#include <theme/BaseTheme.h>

#include <QtTest/QtTest>

#include <memory>
#include <support/MessageRecorder.h>
#include <support/Text.h>
#include <support/ThemeRepository.h>
#include <sys/stat.h>

using TARN::BaseTheme;

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray archive(const QString &name)
{
    return contentOf(text(MOX_TEST_ARCHIVES "/") + name + text(".rcc"));
}

/// Returns what qCompress() makes of \a content, which tells that it has \a size bytes.
QByteArray zlibContent(const QByteArray &content, quint32 size)
{
    QByteArray packed = qCompress(content);
    qToBigEndian(size, packed.data());
    return packed;
}

/// Tells whether each file below ":/" + \a folder has as many bytes as it tells.
bool areReadable(const QString &folder)
{
    QDirIterator entries(text(":/") + folder, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        entries.next();
        const QFileInfo file = entries.fileInfo();
        if (file.isFile() && contentOf(file.filePath()).size() != file.size()) {
            return false;
        }
    }
    return true;
}

} // namespace

/// The resource files of a theme, which the toolkit follows to wherever their numbers point.
class ThemeResourceFilesTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<ThemeRepository> m_repository;

    /// Applies a theme with the resource file \a content. What the theme before had is gone.
    void apply(const QByteArray &content) const
    {
        m_repository->write(text("Test/Images/Test/scalable/file.rcc"), content);
        BaseTheme(m_repository->path(text("Test"))).customize(qApp);
    }

    /// Applies the theme. Returns whether the file is refused, with one warning that names it.
    bool isRefused(const QByteArray &content) const
    {
        MessageRecorder messages;
        apply(content);
        const QStringList refusals = messages.take().filter(text("file.rcc is not registered: "));
        return refusals.size() == 1;
    }

private Q_SLOTS:
    void initTestCase()
    {
        // What is painted does not matter here.
        qputenv("TARN_USE_NATIVE_STYLE", "1");
        qApp->setProperty("appLiveThemeSwitch", true);
        m_repository = std::make_unique<ThemeRepository>();
        m_repository->addTheme(text("Test"));
    }

    void soundFiles_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("packed by zlib") << "zlib";
        QTest::newRow("packed by zstd") << "zstd";
        QTest::newRow("the first version, not packed") << "old";
    }

    void soundFiles()
    {
        QFETCH(QString, name);
        apply(archive(name));
        QVERIFY(contentOf(text(":/Icons/dot.svg")).startsWith("<svg"));
        QVERIFY(contentOf(text(":/test_pictures/below/one.txt")).startsWith("Line 1 of"));
        QVERIFY(areReadable(text("test_pictures")));
    }

    void flippedBytes_data() { soundFiles_data(); }

    /// Wherever a byte is wrong, the file is refused, or all that is found in it can be read.
    void flippedBytes()
    {
        QFETCH(QString, name);
        const QByteArray whole = archive(name);
        QVERIFY(whole.size() > 200);
        constexpr int mostPositions = 250;
        const int step = whole.size() / mostPositions + 1;
        for (int position = 0; position < whole.size(); position += step) {
            for (const int bits : {0xff, 0x01}) {
                QByteArray damaged = whole;
                damaged[position] = char(damaged[position] ^ bits);
                const bool refused = isRefused(damaged);
                const MessageRecorder messages; // of the toolkit, on names that it finds no more
                QVERIFY2(refused ? !QFile::exists(text(":/test_pictures"))
                                 : areReadable(text("Icons")) && areReadable(text("test_pictures")),
                         QByteArray::number(position));
            }
        }
    }

    void truncatedFiles()
    {
        const QByteArray whole = archive(text("old"));
        for (int size = 0; size < whole.size(); size += 3) {
            QVERIFY2(isRefused(whole.left(size)), QByteArray::number(size));
        }
    }

    void refusedFiles_data()
    {
        QTest::addColumn<QByteArray>("content");
        const QString path = text("Icons/a.svg");
        const auto row = [&](const char *name, const QByteArray &content,
                             ResourceFile::Flags flags = ResourceFile::Plain) {
            QTest::newRow(name) << ResourceFile{path, content, flags}.toBytes();
        };
        QTest::newRow("no resource file") << QByteArray("text");
        QTest::newRow("parent folder") << ResourceFile{text("../a"), "a"}.toBytes();
        QTest::newRow("no name") << ResourceFile{text("Icons//a"), "a"}.toBytes();
        QTest::newRow("a long path")
            << ResourceFile{QString(1024, QLatin1Char('a')), "a"}.toBytes();
        row("drawing that links to another file",
            "<svg xmlns:xlink='http://www.w3.org/1999/xlink'><image xlink:href='/etc/x'/></svg>");
        row("tells more bytes than it has", zlibContent("abc", 4), ResourceFile::Zlib);
        row("tells less bytes than it has", zlibContent("abc", 2), ResourceFile::Zlib);
        row("tells no size", "abc", ResourceFile::Zlib);
        row("packed by both", zlibContent("abc", 3),
            ResourceFile::Flags(ResourceFile::Zlib | ResourceFile::Zstd));
        const QByteArray many((1 << 26) + 1, 'a');
        row("more than can be unpacked", qCompress(many), ResourceFile::Zlib);
        row("more than tells so", zlibContent(many, 5), ResourceFile::Zlib);
        row("more bytes than a file may have", many);
    }

    void refusedFiles()
    {
        QFETCH(QByteArray, content);
        QVERIFY(isRefused(content));
        QVERIFY(!QFile::exists(text(":/Icons/a.svg")));
    }

    void pipes()
    {
        const QString path = m_repository->path(text("Test/Images/Test/scalable/pipe.rcc"));
        m_repository->makeFolder(text("Test/Images/Test/scalable"));
        QCOMPARE(mkfifo(QFile::encodeName(path).constData(), S_IRUSR | S_IWUSR), 0);
        MessageRecorder messages;
        apply(archive(text("old")));
        QVERIFY(!messages.take().filter(text("pipe.rcc")).isEmpty());
        QVERIFY(QFile::exists(text(":/test_pictures/below/one.txt")));
    }

    /// What is found was found sound, whatever becomes of the file.
    void filesThatChange()
    {
        apply(archive(text("old")));
        m_repository->write(text("Test/Images/Test/scalable/file.rcc"), QByteArray());
        QVERIFY(contentOf(text(":/test_pictures/below/one.txt")).startsWith("Line 1 of"));
    }

    /// A file that is open stays readable when another theme is applied.
    void filesThatAreOpen()
    {
        apply(archive(text("old")));
        QFile file(text(":/test_pictures/below/one.txt"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        apply(ResourceFile{text("Icons/a"), "a"}.toBytes());
        QVERIFY(!QFile::exists(text(":/test_pictures")));
        QVERIFY(file.readAll().startsWith("Line 1 of"));
    }

    void placesOfFiles_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("isPlaceOfThemes");
        QTest::newRow("icons") << "Icons/a" << true;
        QTest::newRow("icons that no icon theme has") << "icons/a" << true;
        QTest::newRow("cursors") << "Cursors/a" << true;
        QTest::newRow("its own") << "TARN/Themes/Test/a" << true;
        QTest::newRow("another theme's") << "TARN/Themes/Testing/a" << false;
        QTest::newRow("stylesheets") << "TARN/ThemeLibrary/stylesheets/a.qss" << false;
        QTest::newRow("begins like icons") << "IconsOfTheProgram/a" << false;
        QTest::newRow("the program's") << "program/a" << false;
        QTest::newRow("the root") << "a" << false;
    }

    /// In the complete mode files can't be mistaken for the program's; by default, they may lie
    /// anywhere.
    void placesOfFiles()
    {
        QFETCH(QString, path);
        QFETCH(bool, isPlaceOfThemes);
        const QByteArray content = ResourceFile{path, "content"}.toBytes();
        apply(content);
        QCOMPARE(contentOf(text(":/") + path), QByteArray("content"));

        qApp->setProperty("appCompleteTheming", true);
        QCOMPARE(isRefused(content), !isPlaceOfThemes);
        QCOMPARE(QFile::exists(text(":/") + path), isPlaceOfThemes);
        qApp->setProperty("appCompleteTheming", QVariant());
    }

    /// What the program brings with it is found first.
    void filesOfTheProgram()
    {
        const QByteArray before = contentOf(text(":/Icons/action.close.svg"));
        QVERIFY(!before.isEmpty());
        apply(ResourceFile{text("Icons/action.close.svg"), "<svg/>"}.toBytes());
        QCOMPARE(contentOf(text(":/Icons/action.close.svg")), before);
    }
};

QTEST_MAIN(ThemeResourceFilesTest)
#include "ThemeResourceFilesTest.moc"
