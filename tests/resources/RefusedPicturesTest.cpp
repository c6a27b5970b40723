#include "ImageFiles.h"

#include <resources/ThemeResources.h>

#include <QtTest/QtTest>

#include <memory>
#include <support/MessageRecorder.h>
#include <support/Text.h>
#include <support/ThemeRepository.h>
#include <sys/stat.h>

using TARN::ThemeResources;

namespace {

const QSize iconSize(16, 16);

QByteArray drawing(const QByteArray &content, const QByteArray &prolog = {})
{
    return prolog +
           "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' "
           "width='16' height='16'><rect width='16' height='16' fill='red'/>" +
           content + "</svg>";
}

QByteArray pictureIn(const QByteArray &link)
{
    return "<image width='16' height='16' xlink:href='" + link + "'/>";
}

QByteArray dataLink(const QByteArray &type, const QByteArray &content)
{
    return "data:image/" + type + ";base64," + content.toBase64();
}

bool isRed(const QPixmap &pixmap)
{
    return !pixmap.isNull() && pixmap.toImage().pixelColor(8, 8) == Qt::red;
}

} // namespace

/// Pictures that would keep the program waiting, or take its memory. Each is refused with one
/// warning, and gives what an unknown name gives.
class RefusedPicturesTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<ThemeRepository> m_files;

    /// Asks for the picture \a name in all ways.
    static bool isMissing(const QString &name)
    {
        return ThemeResources::getIcon(name).isNull() &&
               ThemeResources::getPixmap(name, iconSize).isNull() &&
               ThemeResources::getPixmap(name, {}).isNull() &&
               ThemeResources::getCursor(name).shape() == Qt::ArrowCursor;
    }

    /// Tells whether each of \a messages says once that \a fileName is not used.
    static bool areRefusals(const QStringList &messages, const QString &fileName)
    {
        return !messages.isEmpty() &&
               QSet<QString>(messages.begin(), messages.end()).size() == messages.size() &&
               std::all_of(messages.begin(), messages.end(), [&](const QString &message) {
                   return message.contains(fileName + text(" is not used: "));
               });
    }

public:
    static void initMain()
    {
        // On such a screen the toolkit looks for larger variants of an icon as well.
        qputenv("QT_SCALE_FACTOR", "2");
    }

private Q_SLOTS:
    void init()
    {
        m_files = std::make_unique<ThemeRepository>();
        QDir::setSearchPaths(text("icons"), {m_files->path()});
        QDir::setSearchPaths(text("cursors"), {m_files->path()});
    }

    void drawingsThatLinkToPipes_data()
    {
        QTest::addColumn<QString>("fileName");
        QTest::addColumn<QByteArray>("content");
        const QByteArray link = pictureIn("pipe");
        QTest::newRow("picture") << "a.svg" << drawing(link);
        QTest::newRow("address") << "a.svg" << drawing(pictureIn("file:pipe"));
        QTest::newRow("blanks around") << "a.svg" << drawing(pictureIn(" pipe\n"));
        QTest::newRow("default of an attribute")
            << "a.svg"
            << drawing("<image width='16' height='16'/>",
                       "<!DOCTYPE svg [<!ATTLIST image xlink:href CDATA 'pipe'>]>");
        QTest::newRow("stylesheet")
            << "a.svg"
            << drawing({}, "<?xml version='1.0'?><?xml-stylesheet type='text/css' href='pipe'?>");
        QTest::newRow("compressed") << "a.svgz" << gzipped(drawing(link));
        QTest::newRow("compressed, by another name") << "a.svg" << gzipped(drawing(link));
        QTest::newRow("other extension") << "a.png" << drawing(link);
        QTest::newRow("no extension") << "a" << drawing(link);
    }

    /// Nobody writes into the pipe, so whoever reads it waits for ever.
    void drawingsThatLinkToPipes()
    {
        QFETCH(QString, fileName);
        QFETCH(QByteArray, content);
        // Links count from the drawing's folder, and from the one that the program runs in.
        QVERIFY(QDir::setCurrent(m_files->path()));
        const QByteArray pipe = QFile::encodeName(m_files->path(text("pipe")));
        QCOMPARE(mkfifo(pipe.constData(), S_IRUSR | S_IWUSR), 0);
        m_files->write(fileName, content.replace("file:pipe", "file://" + pipe));
        MessageRecorder messages;
        QVERIFY(isMissing(text("a")));
        QVERIFY(areRefusals(messages.take().mid(0, 1), fileName));
    }

    void drawingsThatKeepToThemselves_data()
    {
        QTest::addColumn<QString>("fileName");
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("a part of it used again")
            << "a.svg" << drawing("<rect id='r' width='1' height='1'/><use xlink:href='#r'/>");
        QTest::newRow("address of a page")
            << "a.svg" << drawing("<a xlink:href='https://a.example/'/>");
        QTest::newRow("name of an editor's file")
            << "a.svg" << drawing("<g export-filename='/home/author/picture.png'/>");
        QTest::newRow("picture in it")
            << "a.svg" << drawing(pictureIn(dataLink("png", rasterFile(Qt::red, "PNG"))));
        QTest::newRow("compressed") << "a.svgz" << gzipped(drawing({}));
    }

    void drawingsThatKeepToThemselves()
    {
        QFETCH(QString, fileName);
        QFETCH(QByteArray, content);
        m_files->write(fileName, content);
        QVERIFY(isRed(ThemeResources::getIcon(text("a")).pixmap(iconSize)));
        QVERIFY(isRed(ThemeResources::getPixmap(text("a"), iconSize)));
        QVERIFY(isRed(ThemeResources::getPixmap(text("a"), {})));
        QVERIFY(isRed(ThemeResources::getCursor(text("a")).pixmap()));
    }

    void picturesInDrawings_data()
    {
        QTest::addColumn<QByteArray>("content");
        const QByteArray half = pictureIn(dataLink("png", largePng({4096, 2049})));
        QTest::newRow("one that is too large")
            << drawing(pictureIn(dataLink("png", largePng({4096, 4097}))));
        QTest::newRow("two that are too large together") << drawing(half + half);
        QTest::newRow("drawing") << drawing(pictureIn(dataLink("svg+xml", drawing({}))));
        QTest::newRow("compressed drawing")
            << drawing(pictureIn(dataLink("svg+xml", gzipped(drawing({})))));
        QTest::newRow("icon file that is too large")
            << drawing(pictureIn(dataLink("ico", iconFile({largePng({4096, 4097})}))));
    }

    void picturesInDrawings()
    {
        QFETCH(QByteArray, content);
        m_files->write(text("a.svg"), content);
        MessageRecorder messages;
        QVERIFY(isMissing(text("a")));
        QVERIFY(areRefusals(messages.take().mid(0, 1), text("a.svg")));
    }

    void drawingsOfTooManyBytes()
    {
        constexpr int mostBytes = 1 << 24;
        const QByteArray begin = drawing({});
        for (const int size : {mostBytes, mostBytes + 1}) {
            const QByteArray content = begin + QByteArray(size - begin.size(), ' ');
            m_files->write(text("a%1.svg").arg(size), content);
            m_files->write(text("z%1.svgz").arg(size), gzipped(content));
        }
        for (const QString &name : {text("a"), text("z")}) {
            const QString fitting = name + QString::number(mostBytes);
            const QString larger = name + QString::number(mostBytes + 1);
            QVERIFY(!ThemeResources::getIcon(fitting).isNull());
            const auto warning = QRegularExpression(larger + text(R"(\.svgz? is not used: )"));
            QTest::ignoreMessage(QtWarningMsg, warning);
            QVERIFY(ThemeResources::getIcon(larger).isNull());
        }
    }

    void pixelsOfIcons_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<bool>("isIcon");
        const QByteArray fitting = largePng({4096, 4096});
        const QByteArray larger = largePng({4096, 4097});
        QTest::newRow("just fitting") << fitting << true;
        QTest::newRow("a row more") << larger << false;
        QTest::newRow("some gigabytes") << largePng({30000, 30000}) << false;
        QTest::newRow("icon file") << iconFile({fitting, fitting}) << true;
        QTest::newRow("icon file of a larger one") << iconFile({fitting, larger}) << false;
    }

    void pixelsOfIcons()
    {
        QFETCH(QByteArray, content);
        QFETCH(bool, isIcon);
        m_files->write(text("a.png"), content);
        MessageRecorder messages;
        QCOMPARE(!ThemeResources::getIcon(text("a")).isNull(), isIcon);
        QCOMPARE(areRefusals(messages.take(), text("a.png")), !isIcon);
        // Told once, not by each look-up.
        QCOMPARE(!ThemeResources::getIcon(text("a")).isNull(), isIcon);
        QCOMPARE(messages.take(), QStringList());
    }

    void variantsOfIcons()
    {
        for (const QString &name : {text("sound"), text("large")}) {
            m_files->write(name + text(".png"), rasterFile(Qt::red));
        }
        m_files->write(text("sound@2x.png"), rasterFile(Qt::red, "PNG", {32, 32}));
        m_files->write(text("large@2x.png"), largePng({4096, 4097}));
        QVERIFY(isRed(ThemeResources::getIcon(text("sound")).pixmap(iconSize)));
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(text("large@2x\\.png is not used: ")));
        QVERIFY(ThemeResources::getIcon(text("large")).isNull());
    }

    void pixelsOfCursors()
    {
        m_files->write(text("fitting.png"), largePng({2048, 2048}));
        m_files->write(text("larger.png"), largePng({2048, 2049}));
        m_files->write(text("icon.cur"), iconFile({largePng({2048, 2049})}));
        QCOMPARE(ThemeResources::getCursor(text("fitting")).pixmap().size(), QSize(2048, 2048));
        for (const QString &name : {text("larger"), text("icon")}) {
            QTest::ignoreMessage(QtWarningMsg,
                                 QRegularExpression(name + text(R"(\.\w+ is not used: )")));
            QCOMPARE(ThemeResources::getCursor(name).shape(), Qt::ArrowCursor);
        }
    }

    /// It would be decoded wholly even to be scaled down.
    void pixelsOfPictures()
    {
        m_files->write(text("larger.png"), largePng({16384, 8193}));
        MessageRecorder messages;
        QVERIFY(ThemeResources::getPixmap(text("larger"), iconSize).isNull());
        QVERIFY(areRefusals(messages.take(), text("larger.png")));
        QVERIFY(ThemeResources::getPixmap(text("larger"), {}).isNull());
        QVERIFY(areRefusals(messages.take(), text("larger.png")));
    }

    /// A warning names the file as a person would, however it is asked for.
    void pathsInWarnings_data()
    {
        QTest::addColumn<QString>("endOfFolder");
        QTest::addColumn<QString>("name");
        QTest::newRow("no slash") << QString() << "a";
        QTest::newRow("the name begins with one") << QString() << "/a";
        QTest::newRow("the folder ends with one") << "/"
                                                  << "a";
    }

    void pathsInWarnings()
    {
        QFETCH(QString, endOfFolder);
        QFETCH(QString, name);
        QDir::setSearchPaths(text("icons"), {m_files->path() + endOfFolder});
        const QString path = m_files->write(text("a.svg"), drawing(pictureIn("other.png")));
        MessageRecorder messages;
        QVERIFY(ThemeResources::getIcon(name).isNull());
        QVERIFY(messages.take().first().contains(text(" ") + path + text(" ")));
    }

    /// Mended, a file is used again.
    void changedFiles()
    {
        m_files->write(text("a.svg"), drawing(pictureIn("other.png")));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(text(R"(a\.svg is not used: )")));
        QVERIFY(ThemeResources::getIcon(text("a")).isNull());
        m_files->write(text("a.svg"), drawing({}));
        QVERIFY(isRed(ThemeResources::getIcon(text("a")).pixmap(iconSize)));
    }
};

QTEST_MAIN(RefusedPicturesTest)
#include "RefusedPicturesTest.moc"
