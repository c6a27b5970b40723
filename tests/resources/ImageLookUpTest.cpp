#include "ImageFiles.h"

#include <resources/ThemeResources.h>
#include <theme/BaseTheme.h>

#include <QtTest/QtTest>

#include <memory>
#include <support/MessageRecorder.h>
#include <support/Text.h>
#include <support/ThemeRepository.h>

using TARN::BaseTheme;
using TARN::ThemeResources;

namespace {

const QRegularExpression anything(QStringLiteral("."));

QColor middleOf(const QPixmap &pixmap)
{
    return pixmap.toImage().pixelColor(pixmap.rect().center());
}

QStringList sorted(QStringList names)
{
    names.sort();
    return names;
}

} // namespace

/// Look-up of icons and pixmaps by name in the search paths.
class ImageLookUpTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<ThemeRepository> m_files;

    /// Has icons looked for in the folders "first" and "second".
    void searchBothFolders() const
    {
        QDir::setSearchPaths(text("icons"), {m_files->makeFolder(text("first")),
                                             m_files->makeFolder(text("second"))});
    }

    /// Writes files whose colour tells which of them was found.
    void writeFiles() const
    {
        m_files->write(text("first/plain.svg"), svgFile("red"));
        m_files->write(text("second/plain.svg"), svgFile("blue"));
        m_files->write(text("second/other.png"), rasterFile(Qt::blue));
        // Formats are tried in alphabetical order.
        m_files->write(text("first/late.xpm"), rasterFile(Qt::red, "XPM"));
        m_files->write(text("second/late.bmp"), rasterFile(Qt::blue, "BMP"));
        m_files->write(text("first/several.svg"), svgFile("red"));
        m_files->write(text("first/several.bmp"), rasterFile(Qt::green, "BMP"));
        m_files->write(text("first/full.svg.bmp"), rasterFile(Qt::green, "BMP"));
        m_files->write(text("first/full.svg"), svgFile("red"));
        m_files->write(text("first/bare"), rasterFile(Qt::red));
        m_files->write(text("first/bare.png"), rasterFile(Qt::green));
        m_files->write(text("first/strange.bin"), rasterFile(Qt::red));
        m_files->write(text("first/inner/deep.png"), rasterFile(Qt::red));
        m_files->write(text("outside.png"), rasterFile(Qt::red));
        m_files->write(text("first/a.b.24x.svg"), svgFile("red"));
    }

private Q_SLOTS:
    void init()
    {
        m_files = std::make_unique<ThemeRepository>();
        QDir::setSearchPaths(text("icons"), {});
    }

    void namesAreFound_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QColor>("expected");
        const QColor red(Qt::red);
        const QColor green(Qt::green);
        const QColor blue(Qt::blue);
        QTest::newRow("the first directory wins") << text("plain") << red;
        QTest::newRow("with its extension") << text("plain.svg") << red;
        QTest::newRow("second directory only") << text("other") << blue;
        QTest::newRow("second directory only, with its extension") << text("other.png") << blue;
        QTest::newRow("the directory goes before the extension") << text("late") << red;
        QTest::newRow("an earlier extension wins") << text("several") << green;
        QTest::newRow("a full name goes before extensions") << text("full.svg") << red;
        QTest::newRow("no extension at all") << text("bare") << red;
        QTest::newRow("an unknown extension, named") << text("strange.bin") << red;
        QTest::newRow("an unknown extension") << text("strange") << QColor();
        QTest::newRow("another extension") << text("plain.png") << QColor();
        QTest::newRow("dots in the name") << text("a.b.24x") << red;
        QTest::newRow("a part of the name") << text("a.b") << QColor();
        QTest::newRow("a subfolder") << text("inner/deep") << red;
        QTest::newRow("native separators") << QDir::toNativeSeparators(text("inner/deep")) << red;
        QTest::newRow("a leading slash") << text("/plain") << red;
        QTest::newRow("beside the folders") << text("../outside") << red;
        QTest::newRow("unknown") << text("nothing") << QColor();
        QTest::newRow("empty") << text("") << QColor();
        QTest::newRow("null") << QString() << QColor();
#ifdef Q_OS_LINUX
        QTest::newRow("another case") << text("Plain") << QColor();
        QTest::newRow("another case of the extension") << text("plain.SVG") << QColor();
        QTest::newRow("a backslash is a character") << text("inner\\deep") << QColor();
#endif
    }

    void namesAreFound()
    {
        QFETCH(QString, name);
        QFETCH(QColor, expected);
        searchBothFolders();
        writeFiles();
        MessageRecorder messages;
        const QIcon icon = ThemeResources::getIcon(name);
        const QPixmap pixmap = ThemeResources::getPixmap(name, QSize());
        QCOMPARE(icon.isNull(), !expected.isValid());
        QCOMPARE(pixmap.isNull(), !expected.isValid());
        if (expected.isValid()) {
            QCOMPARE(middleOf(icon.pixmap(16)).rgb(), expected.rgb());
            QCOMPARE(middleOf(pixmap).rgb(), expected.rgb());
        }
        QCOMPARE(messages.take(), QStringList());
    }

    void absoluteNamesAreRelativeToTheDirectory()
    {
        searchBothFolders();
        const QString path = m_files->write(text("outside.png"), rasterFile(Qt::red));
        QVERIFY(ThemeResources::getIcon(path).isNull());
        m_files->write(text("second") + path, rasterFile(Qt::blue));
        QCOMPARE(middleOf(ThemeResources::getPixmap(path, {})), QColor(Qt::blue));
    }

    void directoriesMayEndWithASlash()
    {
        writeFiles();
        QDir::setSearchPaths(text("icons"), {m_files->path(text("first/"))});
        QVERIFY(!ThemeResources::getPixmap(text("plain"), {}).isNull());
        QVERIFY(!ThemeResources::getPixmap(text("/plain"), {}).isNull());
    }

    void aFolderHidesLaterFiles()
    {
        searchBothFolders();
        m_files->makeFolder(text("first/thing.png"));
        m_files->write(text("second/thing.png"), rasterFile(Qt::blue));
        QVERIFY(ThemeResources::getPixmap(text("thing"), {}).isNull());
    }

    void nothingIsFoundWithoutSearchPaths()
    {
        QVERIFY(ThemeResources::getIcon(text("action.copy")).isNull());
        QVERIFY(ThemeResources::getPixmap(text("action.copy"), QSize(16, 16)).isNull());
        QCOMPARE(ThemeResources::getIcons(anything), QStringList());
    }

    void missingDirectoriesArePassedOver()
    {
        m_files->write(text("second/plain.svg"), svgFile("blue"));
        QDir::setSearchPaths(text("icons"),
                             {m_files->path(text("missing")), m_files->path(text("second"))});
        QCOMPARE(middleOf(ThemeResources::getPixmap(text("plain"), {})), QColor(Qt::blue));
        QCOMPARE(ThemeResources::getIcons(anything), QStringList{text("plain")});
    }

    void theIconThemeIsNotAsked()
    {
        m_files->write(text("Known/index.theme"), "[Icon Theme]\nName=Known\nDirectories=scalable\n"
                                                  "[scalable]\nSize=16\nType=Scalable\n");
        m_files->write(text("Known/scalable/known.svg"), svgFile("red"));
        QIcon::setThemeSearchPaths({m_files->path()});
        QIcon::setThemeName(text("Known"));
        searchBothFolders();
        QVERIFY(QIcon::hasThemeIcon(text("known")));
        QVERIFY(ThemeResources::getIcon(text("known")).isNull());
    }

    void pixmapsHaveTheSizeAskedFor_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QSize>("expected");
        QTest::newRow("larger") << QSize(48, 48) << QSize(48, 48);
        QTest::newRow("smaller") << QSize(5, 5) << QSize(5, 5);
        QTest::newRow("of another shape") << QSize(48, 10) << QSize(48, 10);
        QTest::newRow("invalid") << QSize() << QSize(20, 10);
        QTest::newRow("half invalid") << QSize(48, -1) << QSize(20, 10);
        QTest::newRow("empty") << QSize(0, 0) << QSize(0, 0);
        QTest::newRow("without a width") << QSize(0, 48) << QSize(0, 0);
    }

    void pixmapsHaveTheSizeAskedFor()
    {
        QFETCH(QSize, size);
        QFETCH(QSize, expected);
        searchBothFolders();
        m_files->write(text("first/drawn.svg"), svgFile("red", QSize(20, 10)));
        m_files->write(text("first/raster.png"), rasterFile(Qt::red, "PNG", QSize(20, 10)));
        QCOMPARE(ThemeResources::getPixmap(text("drawn"), size).size(), expected);
        QCOMPARE(ThemeResources::getPixmap(text("raster"), size).size(), expected);
    }

    void replacedFilesAreSeen()
    {
        searchBothFolders();
        const QString name = text("plain");
        const auto colorNow = [&name] {
            return middleOf(ThemeResources::getPixmap(name, QSize(16, 16)));
        };
        m_files->write(text("second/plain.svg"), svgFile("blue"));
        QCOMPARE(colorNow(), QColor(Qt::blue));
        m_files->write(text("second/plain.svg"), svgFile("cyan"));
        QCOMPARE(colorNow(), QColor(Qt::cyan));
        m_files->write(text("first/plain.svg"), svgFile("red"));
        QCOMPARE(colorNow(), QColor(Qt::red));
        QVERIFY(QFile::remove(m_files->path(text("first/plain.svg"))));
        QCOMPARE(colorNow(), QColor(Qt::cyan));
        QVERIFY(QFile::remove(m_files->path(text("second/plain.svg"))));
        QVERIFY(ThemeResources::getPixmap(name, QSize(16, 16)).isNull());
    }

    void fileNamesAreListedOnce()
    {
        searchBothFolders();
        const QByteArray noImage;
        for (const char *name : {"first/zebra.svg", "first/apple.svg", "first/apple.png",
                                 "second/apple.svg", "second/bear.svg", "second/zebra.bmp"}) {
            m_files->write(text(name), noImage);
        }
        const QStringList names = ThemeResources::getIcons(anything);
        QCOMPARE(sorted(names.mid(0, 2)), QStringList({text("apple"), text("zebra")}));
        QCOMPARE(names.mid(2), QStringList{text("bear")});
    }

    void fileNamesBecomeIconNames_data()
    {
        QTest::addColumn<QString>("fileName");
        QTest::addColumn<QStringList>("expected");
        const auto addRow = [](const char *fileName, const QStringList &expected) {
            QTest::newRow(fileName) << text(fileName) << expected;
        };
        addRow("plain.svg", {text("plain")});
        addRow("a.b.24x.svg", {text("a.b.24x")});
        addRow("bare", {text("bare")});
        addRow("note.txt", {text("note")});
        addRow("MainBrush.svg", {});
        addRow("MainBrush.svgz", {});
        addRow("MainBrush.svg.png", {});
        addRow("Brush.svg", {});
        addRow("MainBrush.png", {text("MainBrush")});
        addRow("mainbrush.svg", {text("mainbrush")});
        addRow("MainBrush.SVG", {text("MainBrush")});
        addRow("folder/inside.svg", {});
    }

    void fileNamesBecomeIconNames()
    {
        QFETCH(QString, fileName);
        QFETCH(QStringList, expected);
        searchBothFolders();
        m_files->write(text("first/") + fileName, {});
        QCOMPARE(ThemeResources::getIcons(anything), expected);
    }

#ifdef Q_OS_LINUX
    void namesThatDifferInCaseAreTwo()
    {
        searchBothFolders();
        m_files->write(text("first/plain.svg"), {});
        m_files->write(text("second/Plain.svg"), {});
        QCOMPARE(ThemeResources::getIcons(anything), QStringList({text("plain"), text("Plain")}));
    }
#endif

    void theFilterSeesTheWholeFileName_data()
    {
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QStringList>("expected");
        const QString copy = text("action.copy");
        const QString paste = text("action.paste");
        const QString pen = text("tool.pen");
        QTest::newRow("a family") << text("^action\\.") << QStringList({copy, paste});
        QTest::newRow("an extension") << text("\\.png$") << QStringList{pen};
        QTest::newRow("a name to its end") << text("^tool\\.pen$") << QStringList();
        QTest::newRow("a part") << text("p[ae]") << QStringList({paste, pen});
        QTest::newRow("nothing") << text("measure") << QStringList();
        QTest::newRow("the empty pattern") << QString() << QStringList({copy, paste, pen});
    }

    void theFilterSeesTheWholeFileName()
    {
        QFETCH(QString, pattern);
        QFETCH(QStringList, expected);
        searchBothFolders();
        m_files->write(text("first/action.copy.svg"), {});
        m_files->write(text("first/action.paste.svg"), {});
        m_files->write(text("first/tool.pen.png"), {});
        QCOMPARE(sorted(ThemeResources::getIcons(QRegularExpression(pattern))), expected);
    }

    void anAppliedThemeHasItsImagesFound()
    {
        m_files->write(text("Test/Images/Test/scalable/own.thing.svg"), svgFile("red"));
        BaseTheme(m_files->addTheme(text("Test"))).customize(qApp);
        QCOMPARE(middleOf(ThemeResources::getIcon(text("own.thing")).pixmap(16)), QColor(Qt::red));
        QCOMPARE(middleOf(ThemeResources::getPixmap(text("own.thing"), {})), QColor(Qt::red));
        QCOMPARE(ThemeResources::getIcons(anything).value(0), text("own.thing"));
    }
};

QTEST_MAIN(ImageLookUpTest)
#include "ImageLookUpTest.moc"
