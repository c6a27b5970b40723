#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>
#include <QtGui/QImageReader>
#include <QtTest/QtTest>

#include <pages/PageTable.h>

using namespace TARN::Gallery;

namespace {

struct Result
{
    int exitCode = -1;
    QString output;
    QString errors;
};

QProcessEnvironment environmentWithoutDisplay()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        environment.remove(QString::fromLatin1(name));
    }
    // Without one the toolkit has a warning of its own to give.
    static const QTemporaryDir runtimeFolder;
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), runtimeFolder.path());
    return environment;
}

Result runGallery(const QStringList &arguments, const QString &folder = QString())
{
    QProcess process;
    process.setProcessEnvironment(environmentWithoutDisplay());
    process.setWorkingDirectory(folder);
    process.start(QStringLiteral(MOX_GALLERY), arguments);
    Result result;
    if (process.waitForFinished(-1) && process.exitStatus() == QProcess::NormalExit) {
        result.exitCode = process.exitCode();
    }
    result.output = QString::fromUtf8(process.readAllStandardOutput());
    result.errors = QString::fromUtf8(process.readAllStandardError());
    return result;
}

Result takeScreenshots(const QString &folder, const QStringList &more = {})
{
    return runGallery(QStringList({QStringLiteral("--screenshot"), folder}) + more);
}

QString picturePath(const QString &folder, const Page &page)
{
    return folder + u'/' + page.id + QLatin1String(".png");
}

QByteArray fileContents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

int colorCount(const QImage &image)
{
    QSet<QRgb> colors;
    for (int y = 0; y < image.height(); y += 2) {
        for (int x = 0; x < image.width(); x += 2) {
            colors.insert(image.pixel(x, y));
        }
    }
    return colors.size();
}

} // namespace

class GalleryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void helpExplainsEveryOption();
    void versionIsPrinted();
    void wrongUsageIsNamed_data();
    void wrongUsageIsNamed();
    void unknownThemeNamesTheKnownOnes();
    void unusableRepositoriesAreNamed();
    void unwritableFolderIsNamed();
    void everyPageIsPictured();
    void scaleDoublesThePixels();
    void runsAreIdentical();
    void themesDiffer();
    void withoutDisplayPicturesAreWritten();
};

void GalleryTest::helpExplainsEveryOption()
{
    for (const QString &option : {QStringLiteral("--help"), QStringLiteral("-h")}) {
        const Result result = runGallery({option});
        QCOMPARE(result.exitCode, 0);
        QCOMPARE(result.errors, QString());
        for (const char *name : {"--theme ", "--theme-repository ", "--screenshot ", "--scale ",
                                 "--mode ", "--help", "--version"}) {
            QVERIFY2(result.output.contains(QString::fromLatin1(name)), name);
        }
    }
}

void GalleryTest::versionIsPrinted()
{
    const Result result = runGallery({QStringLiteral("--version")});
    QCOMPARE(result.exitCode, 0);
    const QRegularExpression line(QStringLiteral("^mox-theme-gallery \\d+\\.\\d+\\.\\d+\n$"));
    QVERIFY2(line.match(result.output).hasMatch(), qPrintable(result.output));
}

void GalleryTest::wrongUsageIsNamed_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("culprit");
    QTest::newRow("unknown option") << "--bogus"
                                    << "--bogus";
    QTest::newRow("unknown short option") << "-x"
                                          << "-x";
    QTest::newRow("positional argument") << "picture.png"
                                         << "picture.png";
    QTest::newRow("wrong mode") << "--mode half"
                                << "half";
    QTest::newRow("wrong scale") << "--scale 4"
                                 << "4";
    QTest::newRow("missing value") << "--screenshot"
                                   << "--screenshot";
    QTest::newRow("missing value before an option") << "--theme --scale 1"
                                                    << "--theme";
}

void GalleryTest::wrongUsageIsNamed()
{
    QFETCH(const QString, arguments);
    QFETCH(const QString, culprit);
    const QTemporaryDir folder;
    const Result result = runGallery(arguments.split(u' '), folder.path());
    QCOMPARE(result.exitCode, 2);
    QCOMPARE(result.errors.count(u'\n'), 1);
    QVERIFY2(result.errors.contains(QString(u'\'' + culprit + u'\'')), qPrintable(result.errors));
}

void GalleryTest::unknownThemeNamesTheKnownOnes()
{
    for (const QStringList &arguments :
         {QStringList({QStringLiteral("--theme"), QStringLiteral("Plaid")}),
          QStringList({QStringLiteral("--theme=Plaid")})}) {
        const Result result = runGallery(arguments);
        QCOMPARE(result.exitCode, 1);
        QCOMPARE(result.errors.count(u'\n'), 1);
        for (const char *name : {"'Plaid'", "Dark", "Light"}) {
            QVERIFY2(result.errors.contains(QString::fromLatin1(name)), qPrintable(result.errors));
        }
    }
}

void GalleryTest::unusableRepositoriesAreNamed()
{
    const QTemporaryDir empty;
    for (const QString &path : {empty.path(), empty.filePath(QStringLiteral("missing"))}) {
        const Result result = runGallery({QStringLiteral("--theme-repository"), path});
        QCOMPARE(result.exitCode, 1);
        QCOMPARE(result.errors.count(u'\n'), 1);
        QVERIFY2(result.errors.contains(path), qPrintable(result.errors));
    }
    // A folder of folders is listed as themes, but none of them can be applied.
    QVERIFY(QDir(empty.path()).mkdir(QStringLiteral("Dark")));
    const Result result = runGallery({QStringLiteral("--theme-repository"), empty.path()});
    QCOMPARE(result.exitCode, 1);
    QVERIFY2(result.errors.contains(QLatin1String("theme.xml")), qPrintable(result.errors));
}

void GalleryTest::unwritableFolderIsNamed()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("file")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const QString path = folder.filePath(QStringLiteral("file/shots"));
    const Result result = takeScreenshots(path);
    QCOMPARE(result.exitCode, 1);
    QVERIFY2(result.errors.contains(path), qPrintable(result.errors));
    QCOMPARE(result.output, QString());
}

void GalleryTest::everyPageIsPictured()
{
    const QTemporaryDir parent;
    const QString folder = parent.filePath(QStringLiteral("new/shots"));
    const Result result = takeScreenshots(folder);
    QCOMPARE(result.exitCode, 0);

    QStringList expected;
    QSize size;
    for (const Page &page : pages()) {
        expected.append(picturePath(folder, page));
        const QImage image(expected.constLast());
        QVERIFY2(!image.isNull(), page.id.latin1());
        QVERIFY2(colorCount(image) > 8, page.id.latin1());
        size = size.isValid() ? size : image.size();
        QCOMPARE(image.size(), size);
    }
    QCOMPARE(result.output.split(u'\n', Qt::SkipEmptyParts), expected);
    QCOMPARE(QDir(folder).entryList(QDir::Files).size(), pages().size());
}

void GalleryTest::scaleDoublesThePixels()
{
    const QTemporaryDir single;
    const QTemporaryDir twofold;
    QCOMPARE(takeScreenshots(single.path()).exitCode, 0);
    QCOMPARE(
        takeScreenshots(twofold.path(), {QStringLiteral("--scale"), QStringLiteral("2")}).exitCode,
        0);
    for (const Page &page : pages()) {
        const QSize size = QImageReader(picturePath(single.path(), page)).size();
        QVERIFY(size.isValid());
        QCOMPARE(QImageReader(picturePath(twofold.path(), page)).size(), size * 2);
    }
}

void GalleryTest::runsAreIdentical()
{
    const QTemporaryDir first;
    const QTemporaryDir second;
    QCOMPARE(takeScreenshots(first.path()).exitCode, 0);
    QCOMPARE(takeScreenshots(second.path()).exitCode, 0);
    for (const Page &page : pages()) {
        const QByteArray contents = fileContents(picturePath(first.path(), page));
        QVERIFY(!contents.isEmpty());
        QVERIFY2(contents == fileContents(picturePath(second.path(), page)), page.id.latin1());
    }
}

void GalleryTest::themesDiffer()
{
    const QTemporaryDir dark;
    const QTemporaryDir light;
    QCOMPARE(takeScreenshots(dark.path(), {QStringLiteral("--theme=Dark")}).exitCode, 0);
    QCOMPARE(takeScreenshots(light.path(), {QStringLiteral("--theme"), QStringLiteral("Light")})
                 .exitCode,
             0);
    for (const Page &page : pages()) {
        const QImage darkImage(picturePath(dark.path(), page));
        const QImage lightImage(picturePath(light.path(), page));
        QCOMPARE(lightImage.size(), darkImage.size());
        QVERIFY2(darkImage != lightImage, page.id.latin1());
    }
}

void GalleryTest::withoutDisplayPicturesAreWritten()
{
    const QTemporaryDir folder;
    const Result result = runGallery({}, folder.path());
    QCOMPARE(result.exitCode, 0);
    QVERIFY2(result.output.contains(QLatin1String("no display")), qPrintable(result.output));
    const QString shots = folder.filePath(QStringLiteral("mox-theme-gallery-screenshots"));
    QVERIFY2(result.output.contains(shots), qPrintable(result.output));
    for (const Page &page : pages()) {
        QVERIFY2(QFileInfo(picturePath(shots, page)).size() > 0, page.id.latin1());
    }
}

QTEST_MAIN(GalleryTest)
#include "GalleryTest.moc"
