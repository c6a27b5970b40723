#include "ImageFiles.h"

#include <resources/ThemeResources.h>

#include <QtTest/QtTest>

#include <limits>
#include <memory>
#include <support/MessageRecorder.h>
#include <support/Text.h>
#include <support/ThemeRepository.h>
#include <sys/stat.h>

using TARN::ThemeResources;

namespace {

const QSize cursorSize(32, 32);
const QSize iconSize(16, 16);

/// Tells whether \a cursor is the one that stands for no cursor.
bool isArrow(const QCursor &cursor)
{
    return cursor.shape() == Qt::ArrowCursor && cursor.pixmap().isNull() &&
           cursor.hotSpot() == QPoint(0, 0);
}

CursorFile cursorOfBitmap(int width, int height)
{
    // A declared size of 0 leaves the size to the bitmap's own header.
    CursorFile file;
    file.declaredWidth = 0;
    file.declaredHeight = 0;
    file.bitmapWidth = width;
    file.bitmapHeight = height;
    return file;
}

} // namespace

/// Images that are no images, or ones that nobody drew: none of them may end the process, and what
/// can't be read gives what an unknown name gives.
class DamagedImagesTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<ThemeRepository> m_files;

    QCursor cursorOf(const QByteArray &content) const
    {
        m_files->write(text("damaged.cur"), content);
        return ThemeResources::getCursor(text("damaged"));
    }

    /// Returns the pixmap of a file with the extension \a extension, which is the only one of its
    /// name while this runs.
    QPixmap pixmapOf(const QByteArray &content, const char *extension, const QSize &size) const
    {
        const QString path = m_files->write(text("damaged.") + text(extension), content);
        QPixmap pixmap = ThemeResources::getPixmap(text("damaged"), size);
        (void)ThemeResources::getIcon(text("damaged")).pixmap(iconSize);
        QFile::remove(path);
        return pixmap;
    }

private Q_SLOTS:
    void init()
    {
        m_files = std::make_unique<ThemeRepository>();
        QDir::setSearchPaths(text("icons"), {m_files->path()});
        QDir::setSearchPaths(text("cursors"), {m_files->path()});
    }

    /// Nobody writes into the pipe, so whoever reads it waits for ever.
    void pipesAreNoImages()
    {
        for (const char *name : {"/pipe", "/other.svg", "/another.cur"}) {
            const QByteArray path = QFile::encodeName(m_files->path() + text(name));
            QCOMPARE(mkfifo(path.constData(), S_IRUSR | S_IWUSR), 0);
        }
        for (const QString &name : {text("pipe"), text("other"), text("another")}) {
            QVERIFY(ThemeResources::getIcon(name).isNull());
            QVERIFY(ThemeResources::getPixmap(name, iconSize).isNull());
            QVERIFY(ThemeResources::getPixmap(name, QSize()).isNull());
            QVERIFY(isArrow(ThemeResources::getCursor(name)));
        }
    }

    void truncatedCursors()
    {
        const QByteArray whole = CursorFile{}.toBytes();
        constexpr int maskSize = 32 * 32 / 8;
        for (int length = 0; length < whole.size() - maskSize; ++length) {
            QVERIFY2(isArrow(cursorOf(whole.left(length))), QByteArray::number(length));
        }
        const QCursor cursor = cursorOf(whole);
        QCOMPARE(cursor.pixmap().size(), cursorSize);
        QCOMPARE(cursor.hotSpot(), QPoint(5, 9));
    }

    void declaredSizesOfCursors_data()
    {
        QTest::addColumn<int>("declared");
        QTest::addColumn<QSize>("expected");
        QTest::newRow("0 leaves it to the bitmap") << 0 << cursorSize;
        QTest::newRow("one pixel") << 1 << QSize(1, 1);
        QTest::newRow("less than there is") << 31 << QSize(31, 31);
        QTest::newRow("more than there is") << 33 << QSize();
        QTest::newRow("the largest") << 255 << QSize();
    }

    void declaredSizesOfCursors()
    {
        QFETCH(int, declared);
        QFETCH(QSize, expected);
        CursorFile file;
        file.declaredWidth = static_cast<quint8>(declared);
        file.declaredHeight = static_cast<quint8>(declared);
        const QCursor cursor = cursorOf(file.toBytes());
        QCOMPARE(isArrow(cursor), !expected.isValid());
        if (expected.isValid()) {
            QCOMPARE(cursor.pixmap().size(), expected);
            QCOMPARE(cursor.hotSpot(), QPoint(5, 9));
        }
    }

    void sizesOfCursorBitmaps_data()
    {
        QTest::addColumn<int>("side");
        for (const int side :
             {0, -1, -32, 256, 1000, 20000, 65536, 100000, std::numeric_limits<int>::max(),
              std::numeric_limits<int>::max() - 1, std::numeric_limits<int>::min()}) {
            QTest::addRow("%d", side) << side;
        }
    }

    void sizesOfCursorBitmaps()
    {
        QFETCH(int, side);
        QVERIFY(isArrow(cursorOf(cursorOfBitmap(side, side).toBytes())));
        QVERIFY(isArrow(cursorOf(cursorOfBitmap(side, 64).toBytes())));
        QVERIFY(isArrow(cursorOf(cursorOfBitmap(32, side).toBytes())));

        // Where the directory declares a size, the bitmap's own does not matter.
        CursorFile file = cursorOfBitmap(side, side);
        file.declaredWidth = 32;
        file.declaredHeight = 32;
        QCOMPARE(cursorOf(file.toBytes()).pixmap().size(), cursorSize);
    }

    void depthsOfCursorBitmaps()
    {
        for (const int depth : {0, 2, 3, 16, 33, 64, 0x7fff, 0x8000, 0xffff}) {
            CursorFile file;
            file.bitsPerPixel = static_cast<quint16>(depth);
            QVERIFY2(isArrow(cursorOf(file.toBytes())), QByteArray::number(depth));
        }
    }

    void paletteSizesOfCursorBitmaps()
    {
        for (const int depth : {1, 4, 8}) {
            for (const quint32 colors : {257U, 0x7fffffffU}) {
                CursorFile file;
                file.bitsPerPixel = static_cast<quint16>(depth);
                file.colorsUsed = colors;
                QVERIFY2(isArrow(cursorOf(file.toBytes())), QByteArray::number(colors));
            }
        }
    }

    void negativePaletteSizesOfCursorBitmaps()
    {
        for (const int depth : {1, 4, 8}) {
            for (const quint32 colors : {0x80000000U, 0xffffffffU}) {
                CursorFile file;
                file.bitsPerPixel = static_cast<quint16>(depth);
                file.colorsUsed = colors;
                const QCursor cursor = cursorOf(file.toBytes());
                QVERIFY(isArrow(cursor) || cursor.pixmap().size() == cursorSize);
            }
        }
    }

    void placesOfCursorBitmaps()
    {
        for (const quint32 offset : {0U, 6U, 21U, 23U, 4158U, 5000U, 0x7fffffffU, 0xffffffffU}) {
            CursorFile file;
            file.imageOffset = offset;
            QVERIFY2(isArrow(cursorOf(file.toBytes())), QByteArray::number(offset));
        }
    }

    void countsOfCursorImages()
    {
        CursorFile file;
        file.count = 0;
        QVERIFY(isArrow(cursorOf(file.toBytes())));
        file.count = 0xffff;
        QCOMPARE(cursorOf(file.toBytes()).hotSpot(), QPoint(5, 9));
    }

    void unknownTypesOfCursorFiles()
    {
        for (const int type : {0, 3, 0x0102, 0x0200, 0x8002, 0xffff}) {
            CursorFile file;
            file.type = static_cast<quint16>(type);
            QVERIFY2(isArrow(cursorOf(file.toBytes())), QByteArray::number(type));
        }
    }

    void truncatedIcons_data()
    {
        QTest::addColumn<QByteArray>("extension");
        QTest::addColumn<QByteArray>("whole");
        QTest::newRow("SVG") << QByteArray("svg") << svgFile("red");
        QTest::newRow("compressed SVG") << QByteArray("svgz") << svgFile("red");
        QTest::newRow("PNG") << QByteArray("png") << rasterFile(Qt::red);
        QTest::newRow("BMP") << QByteArray("bmp") << rasterFile(Qt::red, "BMP");
        QTest::newRow("ICO") << QByteArray("ico") << rasterFile(Qt::red, "ICO");
    }

    void truncatedIcons()
    {
        QFETCH(QByteArray, extension);
        QFETCH(QByteArray, whole);
        const MessageRecorder messages; // of Qt's readers, on each of them
        // From some length on a reader may make do with what there is.
        constexpr int leastLength = 54;
        QVERIFY(whole.size() > leastLength);
        for (int length = 0; length < whole.size(); ++length) {
            const QPixmap pixmap = pixmapOf(whole.left(length), extension, {});
            if (length < leastLength) {
                QVERIFY2(pixmap.isNull(), QByteArray::number(length));
            }
            (void)pixmapOf(whole.left(length), extension, QSize(9, 9));
        }
        QCOMPARE(pixmapOf(whole, extension, {}).size(), iconSize);
        QCOMPARE(pixmapOf(whole, extension, QSize(9, 9)).size(), QSize(9, 9));
    }

    void largeDrawings_data()
    {
        QTest::addColumn<int>("side");
        QTest::addColumn<bool>("canBeUnscaled");
        QTest::newRow("large") << 10000 << true;
        QTest::newRow("too large") << 16385 << false;
        QTest::newRow("some gigabytes") << 40000 << false;
        QTest::newRow("beyond what an image can be") << 100000 << false;
        QTest::newRow("the largest number") << std::numeric_limits<int>::max() << false;
    }

    void largeDrawings()
    {
        QFETCH(int, side);
        QFETCH(bool, canBeUnscaled);
        const QByteArray content = svgFile("red", QSize(side, side));
        m_files->write(text("large.svg"), content);
        QCOMPARE(ThemeResources::getPixmap(text("large"), QSize(48, 48)).size(), QSize(48, 48));
        QCOMPARE(ThemeResources::getIcon(text("large")).pixmap(16).size(), iconSize);

        MessageRecorder messages;
        const QSize expected = canBeUnscaled ? QSize(side, side) : QSize(0, 0);
        QCOMPARE(ThemeResources::getPixmap(text("large"), {}).size(), expected);
        QCOMPARE(messages.take().size(), canBeUnscaled ? 0 : 1);
        if (!canBeUnscaled) {
            QVERIFY(isArrow(ThemeResources::getCursor(text("large"))));
            QCOMPARE(messages.take().size(), 1);
        }
    }

    void oneSideOfALargeDrawing()
    {
        m_files->write(text("wide.svg"), svgFile("red", QSize(std::numeric_limits<int>::max(), 1)));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(text("wide\\.svg is not used: .*")));
        QVERIFY(ThemeResources::getPixmap(text("wide"), {}).isNull());
        QCOMPARE(ThemeResources::getPixmap(text("wide"), iconSize).size(), iconSize);
    }

    void sizesThatAreNone_data()
    {
        QTest::addColumn<QByteArray>("size");
        for (const char *size : {"0", "-5", "nan", "inf", "1e300", "", "wide"}) {
            QTest::newRow(size) << QByteArray(size);
        }
    }

    void sizesThatAreNone()
    {
        QFETCH(QByteArray, size);
        const MessageRecorder messages;
        const QByteArray content = svgFile("red").replace("\"16\"", '"' + size + '"');
        QVERIFY(!content.contains("\"16\""));
        m_files->write(text("none.svg"), content);
        const QPixmap own = ThemeResources::getPixmap(text("none"), {});
        QVERIFY(own.width() <= 16384);
        QVERIFY(own.height() <= 16384);
        (void)ThemeResources::getPixmap(text("none"), iconSize);
        (void)ThemeResources::getIcon(text("none")).pixmap(iconSize);
        (void)ThemeResources::getCursor(text("none"));
    }
};

QTEST_MAIN(DamagedImagesTest)
#include "DamagedImagesTest.moc"
