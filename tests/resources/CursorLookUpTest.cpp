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

const QSize cursorSize(32, 32);
const QPoint centre(16, 16);

CursorFile withHotspot(int x, int y)
{
    CursorFile file;
    file.hotspotX = static_cast<quint16>(x);
    file.hotspotY = static_cast<quint16>(y);
    return file;
}

QColor colorOf(const QCursor &cursor)
{
    return cursor.pixmap().toImage().pixelColor(0, 0);
}

} // namespace

/// Look-up of cursors by name in the search paths.
class CursorLookUpTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<ThemeRepository> m_files;

private Q_SLOTS:
    void init()
    {
        m_files = std::make_unique<ThemeRepository>();
        QDir::setSearchPaths(text("cursors"), {m_files->makeFolder(text("first")),
                                               m_files->makeFolder(text("second"))});
    }

    void theHotspotIsThatOfTheFile_data()
    {
        QTest::addColumn<int>("stored");
        QTest::addColumn<int>("expected");
        QTest::newRow("origin") << 0 << 0;
        QTest::newRow("inside") << 9 << 9;
        QTest::newRow("last pixel") << 31 << 31;
        QTest::newRow("outside of the image") << 127 << 127;
        QTest::newRow("in the high byte") << 0x0100 << 256;
        QTest::newRow("in both bytes") << 0x7f7f << 0x7f7f;
        // A byte from 0x80 makes the hotspot negative, which Qt takes for the middle.
        QTest::newRow("sign of the low byte") << 128 << 16;
        QTest::newRow("low byte 200") << 200 << 16;
        QTest::newRow("low byte 255") << 255 << 16;
        QTest::newRow("the low byte's sign covers the high byte") << 0x0180 << 16;
        QTest::newRow("sign of the high byte") << 0x8000 << 16;
        QTest::newRow("high byte 255") << 0xff05 << 16;
        QTest::newRow("all bits") << 0xffff << 16;
    }

    void theHotspotIsThatOfTheFile()
    {
        QFETCH(int, stored);
        QFETCH(int, expected);
        const QString fileName = text("first/pick.plus.cur");
        m_files->write(fileName, withHotspot(stored, 7).toBytes());
        const QCursor across = ThemeResources::getCursor(text("pick.plus"));
        QCOMPARE(across.shape(), Qt::BitmapCursor);
        QCOMPARE(across.pixmap().size(), cursorSize);
        QCOMPARE(across.hotSpot(), QPoint(expected, 7));

        m_files->write(fileName, withHotspot(3, stored).toBytes());
        QCOMPARE(ThemeResources::getCursor(text("pick.plus")).hotSpot(), QPoint(3, expected));
    }

    void theFirstImagesHotspotCounts()
    {
        CursorFile file = withHotspot(3, 4);
        file.count = 2;
        m_files->write(text("first/several.cur"), file.toBytes());
        QCOMPARE(ThemeResources::getCursor(text("several")).hotSpot(), QPoint(3, 4));
    }

    void iconFilesHaveTheirHotspotAtTheOrigin()
    {
        // Where a cursor has its hotspot, an icon has its planes and bits per pixel.
        CursorFile file = withHotspot(1, 32);
        file.type = 1;
        m_files->write(text("first/icon.cur"), file.toBytes());
        const QCursor cursor = ThemeResources::getCursor(text("icon"));
        QCOMPARE(cursor.pixmap().size(), cursorSize);
        QCOMPARE(cursor.hotSpot(), QPoint(0, 0));
    }

    void otherContentHasItsHotspotAtTheOrigin()
    {
        m_files->write(text("first/disguised.cur"), rasterFile(Qt::red, "PNG", cursorSize));
        const QCursor cursor = ThemeResources::getCursor(text("disguised"));
        QCOMPARE(cursor.pixmap().size(), cursorSize);
        QCOMPARE(cursor.hotSpot(), QPoint(0, 0));
    }

    void otherFilesHaveTheirHotspotInTheMiddle_data()
    {
        QTest::addColumn<QString>("fileName");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content");
        const QByteArray cursor = withHotspot(3, 4).toBytes();
        const QByteArray picture = rasterFile(Qt::red, "PNG", cursorSize);
        QTest::newRow("a PNG file") << text("x.png") << text("x") << picture;
        QTest::newRow("an SVG file") << text("x.svg") << text("x") << svgFile("red", cursorSize);
        QTest::newRow("upper case") << text("x.CUR") << text("x.CUR") << cursor;
        QTest::newRow("capitalised") << text("x.Cur") << text("x.Cur") << cursor;
        QTest::newRow("no extension") << text("x") << text("x") << cursor;
        QTest::newRow("further extension") << text("x.cur.png") << text("x.cur") << picture;
    }

    void otherFilesHaveTheirHotspotInTheMiddle()
    {
        QFETCH(QString, fileName);
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        m_files->write(text("first/") + fileName, content);
        const QCursor cursor = ThemeResources::getCursor(name);
        QCOMPARE(cursor.pixmap().size(), cursorSize);
        QCOMPARE(cursor.hotSpot(), centre);
    }

#ifdef Q_OS_LINUX
    void anUpperCaseExtensionIsNotTried()
    {
        m_files->write(text("first/x.CUR"), CursorFile{}.toBytes());
        QCOMPARE(ThemeResources::getCursor(text("x")).shape(), Qt::ArrowCursor);
    }
#endif

    void directoriesAreSearchedInOrder()
    {
        CursorFile theme;
        theme.color = Qt::red;
        CursorFile other;
        other.color = Qt::blue;
        m_files->write(text("first/both.cur"), theme.toBytes());
        m_files->write(text("second/both.cur"), other.toBytes());
        m_files->write(text("first/late.png"), rasterFile(Qt::red));
        m_files->write(text("second/late.cur"), other.toBytes());
        m_files->write(text("second/single.cur"), other.toBytes());
        QCOMPARE(colorOf(ThemeResources::getCursor(text("both"))), QColor(Qt::red));
        QCOMPARE(colorOf(ThemeResources::getCursor(text("both.cur"))), QColor(Qt::red));
        QCOMPARE(colorOf(ThemeResources::getCursor(text("late"))), QColor(Qt::red));
        QCOMPARE(colorOf(ThemeResources::getCursor(text("single"))), QColor(Qt::blue));
        QCOMPARE(colorOf(ThemeResources::getCursor(text("single.cur"))), QColor(Qt::blue));
    }

    void iconsAreNoCursors()
    {
        QDir::setSearchPaths(text("icons"), {m_files->path(text("pictures"))});
        m_files->write(text("pictures/x.png"), rasterFile(Qt::red));
        m_files->write(text("first/y.cur"), CursorFile{}.toBytes());
        QCOMPARE(ThemeResources::getCursor(text("x")).shape(), Qt::ArrowCursor);
        QVERIFY(ThemeResources::getIcon(text("y")).isNull());
    }

    void whatIsNotFoundIsAnArrow_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("unknown") << text("nothing");
        QTest::newRow("empty") << QString();
        QTest::newRow("a folder") << text("folder");
    }

    void whatIsNotFoundIsAnArrow()
    {
        QFETCH(QString, name);
        m_files->makeFolder(text("first/folder.cur"));
        MessageRecorder messages;
        const QCursor cursor = ThemeResources::getCursor(name);
        QCOMPARE(messages.take(), QStringList());
        QCOMPARE(cursor.shape(), Qt::ArrowCursor);
        QCOMPARE(cursor.hotSpot(), QPoint(0, 0));
        QVERIFY(cursor.pixmap().isNull());
        QCOMPARE(cursor, QCursor(QPixmap()));
    }

    void nothingIsFoundWithoutSearchPaths()
    {
        QDir::setSearchPaths(text("cursors"), {});
        QCOMPARE(ThemeResources::getCursor(text("pick.plus")).shape(), Qt::ArrowCursor);
    }

    void replacedFilesAreSeen()
    {
        CursorFile file = withHotspot(3, 4);
        m_files->write(text("first/x.cur"), file.toBytes());
        QCOMPARE(colorOf(ThemeResources::getCursor(text("x"))), QColor(Qt::red));
        // As long as before, and written within the same second.
        file = withHotspot(5, 6);
        file.color = Qt::blue;
        m_files->write(text("first/x.cur"), file.toBytes());
        const QCursor cursor = ThemeResources::getCursor(text("x"));
        QCOMPARE(colorOf(cursor), QColor(Qt::blue));
        QCOMPARE(cursor.hotSpot(), QPoint(5, 6));
    }

    void anAppliedThemeHasItsCursorsFound()
    {
        QDir::setSearchPaths(text("cursors"), {});
        m_files->write(text("Test/Images/Test/Cursors/own.cur"), withHotspot(3, 4).toBytes());
        BaseTheme(m_files->addTheme(text("Test"))).customize(qApp);
        QCOMPARE(ThemeResources::getCursor(text("own")).hotSpot(), QPoint(3, 4));
    }
};

QTEST_MAIN(CursorLookUpTest)
#include "CursorLookUpTest.moc"
