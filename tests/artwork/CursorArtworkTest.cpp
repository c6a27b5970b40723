#include "Checkout.h"
#include "support/MessageRecorder.h"
#include "support/Text.h"

#include <resources/ThemeResources.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>
#include <QtTest/QtTest>

#include <cmath>
#include <cstdlib>
#include <cursors/CursorFile.h>

using namespace TARN::Artwork;

namespace {

/// Rasterisers round differently from processor to processor.
constexpr int Tolerance = 2;
constexpr int Opaque = 250;

QStringList expectedNames()
{
    return {text("_blank.cur"),
            text("action.add.cur"),
            text("action.add.stamp.cur"),
            text("action.delete.cur"),
            text("action.rotate.clockwise.cur"),
            text("hand.grab.cur"),
            text("hand.pan.cur"),
            text("pick.circle.cur"),
            text("pick.contrast.cur"),
            text("pick.lasso.cur"),
            text("pick.lasso.minus.cur"),
            text("pick.lasso.plus.cur"),
            text("pick.mangicwand.cur"),
            text("pick.neighborhood.cur"),
            text("pick.plus.cur"),
            text("select.grid.cur"),
            text("select.image.cur"),
            text("select.rectangle.cur"),
            text("tool.blow.cur"),
            text("tool.brush.cur"),
            text("tool.camera.cur"),
            text("tool.eraser.cur"),
            text("tool.magnify.cur"),
            text("tool.pen.cur"),
            text("viewer.interact.cur"),
            text("viewer.navigate.cur"),
            text("viewer.pan.cur"),
            text("viewer.zoom.z.cur")};
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString compiledIn(const QString &name)
{
    return text(":/Cursors/") + name;
}

QImage compiledInImage(const QString &name)
{
    return QImage(compiledIn(name)).convertToFormat(QImage::Format_ARGB32);
}

CursorPicture source(const QString &name)
{
    QStringList errors;
    const QString path =
        checkout("src/resources/artwork/cursors/") + name.chopped(4) + text(".svg");
    const auto picture = readCursorSource(path, &errors);
    if (!picture) {
        qFatal("%s", qPrintable(errors.join(QLatin1Char('\n'))));
    }
    return *picture;
}

bool isAlike(QRgb a, QRgb b)
{
    // What is nearly transparent has no colour to compare.
    const QRgb first = qPremultiply(a);
    const QRgb second = qPremultiply(b);
    return std::abs(qAlpha(first) - qAlpha(second)) <= Tolerance &&
           std::abs(qRed(first) - qRed(second)) <= Tolerance &&
           std::abs(qGreen(first) - qGreen(second)) <= Tolerance &&
           std::abs(qBlue(first) - qBlue(second)) <= Tolerance;
}

int differingPixels(const QImage &a, const QImage &b)
{
    int count = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            count += isAlike(a.pixel(x, y), b.pixel(x, y)) ? 0 : 1;
        }
    }
    return count;
}

int pixelsOf(const QImage &image, bool (*matches)(QRgb))
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += matches(image.pixel(x, y)) ? 1 : 0;
        }
    }
    return count;
}

bool isLight(QRgb pixel)
{
    return qAlpha(pixel) >= Opaque && qGray(pixel) > 200;
}

/// Outlines that are slanted or bent are partly transparent.
bool isDark(QRgb pixel)
{
    return qAlpha(pixel) >= 128 && qGray(pixel) < 100;
}

/// Tells whether a light pixel of \a image lies on the edge of the drawing, or of the picture.
bool hasOpenOutline(const QImage &image, QPoint *place)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            *place = QPoint(x, y);
            if (!isLight(image.pixel(x, y))) {
                continue;
            }
            for (const QPoint offset : {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)}) {
                const QPoint neighbour = *place + offset;
                if (!image.valid(neighbour) || qAlpha(image.pixel(neighbour)) < 128) {
                    return true;
                }
            }
        }
    }
    return false;
}

QString writeSource(const QTemporaryDir &folder, const QByteArray &svg)
{
    QFile file(folder.filePath(text("pick.test.svg")));
    if (!file.open(QIODevice::WriteOnly)) {
        qFatal("no file");
    }
    file.write(svg);
    return file.fileName();
}

} // namespace

class CursorArtworkTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void namesAreComplete();
    void filesMatchTheirSources();
    void filesAreCursors();
    void hotspotsPoint();
    void cursorsAreSeenEverywhere();
    void noTwoAreAlike();
    void collectionListsThem();
    void badSourcesAreTold_data();
    void badSourcesAreTold();
};

void CursorArtworkTest::initTestCase()
{
    // The images come with the library, which is loaded when something of it is used.
    QVERIFY(!TARN::ThemeResources::iconsPrefix().isEmpty());
}

void CursorArtworkTest::namesAreComplete()
{
    QCOMPARE(QDir(text(":/Cursors")).entryList(QDir::Files, QDir::Name), expectedNames());
    QCOMPARE(QDir(checkout("src/resources/internalRC/cursors")).entryList(QDir::Files, QDir::Name),
             expectedNames());
    QStringList sources = QDir(checkout("src/resources/artwork/cursors")).entryList(QDir::Files);
    sources.replaceInStrings(text(".svg"), text(".cur"));
    sources.sort();
    QCOMPARE(sources, expectedNames());
}

void CursorArtworkTest::filesMatchTheirSources()
{
    for (const QString &name : expectedNames()) {
        const CursorPicture picture = source(name);
        const QByteArray file = contents(compiledIn(name));
        QCOMPARE(file, contents(checkout("src/resources/internalRC/cursors/") + name));
        QVERIFY2(differingPixels(compiledInImage(name),
                                 picture.image.convertToFormat(QImage::Format_ARGB32)) == 0,
                 qPrintable(name + text(": run \"mox-artwork compose\"")));
        QCOMPARE(QPoint(quint8(file.at(10)), quint8(file.at(12))), picture.hotspot);
    }
}

void CursorArtworkTest::filesAreCursors()
{
    for (const QString &name : expectedNames()) {
        const QByteArray file = contents(compiledIn(name));
        // Reserved, type 2, one image, 32 wide, 32 high, no palette, reserved.
        QVERIFY2(file.startsWith(QByteArray::fromHex("00000200010020200000")), qPrintable(name));
        QCOMPARE(quint8(file.at(11)), quint8(0));
        QCOMPARE(quint8(file.at(13)), quint8(0));
        QCOMPARE(compiledInImage(name).size(), QSize(32, 32));
    }
}

void CursorArtworkTest::hotspotsPoint()
{
    for (const QString &name : expectedNames()) {
        const CursorPicture picture = source(name);
        if (name == u"_blank.cur") {
            QCOMPARE(pixelsOf(picture.image, [](QRgb pixel) { return qAlpha(pixel) > 0; }), 0);
            continue;
        }
        const QRect around(picture.hotspot - QPoint(2, 2), QSize(5, 5));
        const int painted = pixelsOf(picture.image.copy(around),
                                     [](QRgb pixel) { return qAlpha(pixel) >= Opaque; });
        QVERIFY2(painted > 0, qPrintable(name));
    }
}

void CursorArtworkTest::cursorsAreSeenEverywhere()
{
    for (const QString &name : expectedNames()) {
        if (name == u"_blank.cur") {
            continue;
        }
        const QImage image = compiledInImage(name);
        QVERIFY2(pixelsOf(image, isLight) >= 12, qPrintable(name));
        QVERIFY2(pixelsOf(image, isDark) >= 24, qPrintable(name));
        QPoint place;
        QVERIFY2(!hasOpenOutline(image, &place),
                 qPrintable(text("%1: open at %2, %3").arg(name).arg(place.x()).arg(place.y())));
    }
}

void CursorArtworkTest::noTwoAreAlike()
{
    const QStringList names = expectedNames();
    for (int i = 0; i < names.size(); ++i) {
        for (int j = i + 1; j < names.size(); ++j) {
            QVERIFY2(differingPixels(compiledInImage(names.at(i)), compiledInImage(names.at(j))) >=
                         10,
                     qPrintable(names.at(i) + QLatin1Char(' ') + names.at(j)));
        }
    }
}

void CursorArtworkTest::collectionListsThem()
{
    QStringList errors;
    const FileSet files = cursorFiles(checkout("src/resources/artwork/cursors"), &errors);
    QCOMPARE(errors, QStringList());
    QCOMPARE(contents(checkout("src/resources/internalRC/cursors.qrc")),
             files.value(text("cursors.qrc")));
    QCOMPARE(files.size(), expectedNames().size() + 1);
}

void CursorArtworkTest::badSourcesAreTold_data()
{
    QTest::addColumn<QByteArray>("svg");
    QTest::addColumn<QString>("message");
    const QByteArray head = R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 32 32">)";
    QTest::newRow("no SVG") << QByteArray("nonsense") << text("is no SVG file");
    QTest::newRow("empty") << QByteArray() << text("is no SVG file");
    QTest::newRow("other size")
        << QByteArray(R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 24 24"/>)")
        << text("is not drawn on 32 x 32 units");
    QTest::newRow("no hotspot") << head + R"(<rect width="4" height="4"/></svg>)"
                                << text("has no element \"hotspot\"");
    QTest::newRow("hotspot outside")
        << head + R"(<circle id="hotspot" cx="32.5" cy="3.5" r=".5" fill="none"/></svg>)"
        << text("has its hotspot outside, at (32, 3)");
}

void CursorArtworkTest::badSourcesAreTold()
{
    QFETCH(const QByteArray, svg);
    QFETCH(const QString, message);
    // The toolkit has warnings of its own to give.
    const MessageRecorder warnings;
    const QTemporaryDir folder;
    writeSource(folder, svg);
    QStringList errors;
    const FileSet files = cursorFiles(folder.path(), &errors);
    QCOMPARE(errors.size(), 1);
    QVERIFY2(errors.first().contains(message), qPrintable(errors.first()));
    QVERIFY(!files.contains(text("cursors/pick.test.cur")));
}

QTEST_MAIN(CursorArtworkTest)
#include "CursorArtworkTest.moc"
