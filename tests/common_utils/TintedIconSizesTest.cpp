#include "common_utils/TestIcons.h"

#include <QtCore/QRegularExpression>
#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

namespace {

const QColor tint(0x1c, 0x8a, 0x3c);
const QByteArray circle = R"(<circle cx="8" cy="8" r="6.3" fill="#e5eef4"/>)";
const QByteArray tintedCircle = R"(<circle cx="8" cy="8" r="6.3" fill="#1c8a3c"/>)";

void setHighDpiPixmaps(bool on)
{
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps, on);
}

/// Returns which pixels of \a image anything was painted on.
QImage coverage(const QImage &image)
{
    QImage covered(image.size(), QImage::Format_Mono);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            covered.setPixel(x, y, qAlpha(image.pixel(x, y)) > 0 ? 1 : 0);
        }
    }
    return covered;
}

} // namespace

/// Runs in an application of a fractional device pixel ratio.
class TintedIconSizesTest : public QObject
{
    Q_OBJECT

public:
    static void initMain() { qputenv("QT_SCALE_FACTOR", "1.5"); }

private Q_SLOTS:
    void paintsVectorsInDevicePixels_data();
    void paintsVectorsInDevicePixels();
    void pixmapsAreInDevicePixels();
    void actualSizeIsThatOfTheSource();
    void pixmapSourcesAreNotEnlarged();
    void paintsWhereTheSourceWould_data();
    void paintsWhereTheSourceWould();
    void emptySizesGiveNothing();
    void unreadableSourceGivesNothing();
    void hugeSizesTakeBoundedMemory();
    void hugeSizesKeepTheProportions();
};

void TintedIconSizesTest::paintsVectorsInDevicePixels_data()
{
    QTest::addColumn<qreal>("devicePixelRatio");
    QTest::addColumn<bool>("highDpiPixmaps");
    for (const qreal ratio : {1.0, 1.25, 1.5, 2.0}) {
        for (const bool highDpiPixmaps : {false, true}) {
            QTest::addRow("%g %d", ratio, int(highDpiPixmaps)) << ratio << highDpiPixmaps;
        }
    }
}

void TintedIconSizesTest::paintsVectorsInDevicePixels()
{
    QFETCH(qreal, devicePixelRatio);
    QFETCH(bool, highDpiPixmaps);
    const QIcon icon = tinted(svgIcon(circle), tint);
    const QIcon expected = svgIcon(tintedCircle);
    for (const int size : {16, 24, 32}) {
        setHighDpiPixmaps(false);
        const int deviceSize = qRound(size * devicePixelRatio);
        const QImage sharp = pixels(expected, deviceSize);
        setHighDpiPixmaps(highDpiPixmaps);
        const QImage image = painted(icon, {size, size}, devicePixelRatio);
        QCOMPARE(image.size(), QSize(deviceSize, deviceSize));
        QCOMPARE(image, sharp);
    }
}

void TintedIconSizesTest::pixmapsAreInDevicePixels()
{
    QCOMPARE(qApp->devicePixelRatio(), 1.5);
    const QIcon icon = tinted(svgIcon(circle), tint);
    const QIcon expected = svgIcon(tintedCircle);
    for (const bool highDpiPixmaps : {false, true}) {
        setHighDpiPixmaps(highDpiPixmaps);
        const QPixmap pixmap = icon.pixmap(16);
        QCOMPARE(pixmap.devicePixelRatioF(), highDpiPixmaps ? 1.5 : 1.0);
        QCOMPARE(pixmap.size(), highDpiPixmaps ? QSize(24, 24) : QSize(16, 16));
        QCOMPARE(pixels(icon, 16), pixels(expected, 16));
        QCOMPARE(icon.pixmap(16).cacheKey(), pixmap.cacheKey());
        QCOMPARE(QCoreApplication::testAttribute(Qt::AA_UseHighDpiPixmaps), highDpiPixmaps);
    }
}

void TintedIconSizesTest::actualSizeIsThatOfTheSource()
{
    QIcon pixmaps(plainPixmap({16, 16}, foreground));
    pixmaps.addPixmap(plainPixmap({48, 24}, foreground));
    const QIcon vector(writeSvg(R"(<svg xmlns="http://www.w3.org/2000/svg" width="32" height="16">)"
                                R"(<path d="M0 0h32v16H0z" fill="#e5eef4"/></svg>)"));
    for (const QIcon &source : {pixmaps, vector}) {
        const QIcon icon = tinted(source, tint);
        QCOMPARE(icon.availableSizes(), source.availableSizes());
        for (const bool highDpiPixmaps : {false, true}) {
            setHighDpiPixmaps(highDpiPixmaps);
            for (const QSize &size : {QSize(8, 8), QSize(16, 16), QSize(20, 30), QSize(100, 40)}) {
                QCOMPARE(icon.actualSize(size), source.actualSize(size));
                QCOMPARE(icon.pixmap(size).size(), source.pixmap(size).size());
                QCOMPARE(icon.pixmap(size).devicePixelRatioF(),
                         source.pixmap(size).devicePixelRatioF());
            }
        }
    }
}

void TintedIconSizesTest::pixmapSourcesAreNotEnlarged()
{
    const QIcon icon = tinted(plainPixmap({16, 16}, foreground), tint);
    setHighDpiPixmaps(false);
    QCOMPARE(icon.pixmap(64).size(), QSize(16, 16));
    QCOMPARE(icon.pixmap(8).size(), QSize(8, 8));
    QCOMPARE(icon.pixmap(100000).size(), QSize(16, 16));
}

void TintedIconSizesTest::paintsWhereTheSourceWould_data()
{
    paintsVectorsInDevicePixels_data();
}

void TintedIconSizesTest::paintsWhereTheSourceWould()
{
    QFETCH(qreal, devicePixelRatio);
    QFETCH(bool, highDpiPixmaps);
    setHighDpiPixmaps(highDpiPixmaps);
    const QIcon vector(writeSvg(R"(<svg xmlns="http://www.w3.org/2000/svg" width="32" height="16">)"
                                R"(<path d="M0 0h32v16H0z" fill="#e5eef4"/></svg>)"));
    for (const QIcon &source : {QIcon(plainPixmap({16, 12}, foreground)), vector}) {
        for (const QSize &size : {QSize(8, 8), QSize(16, 16), QSize(40, 24)}) {
            QCOMPARE(coverage(painted(tinted(source, tint), size, devicePixelRatio)),
                     coverage(painted(source, size, devicePixelRatio)));
        }
    }
}

void TintedIconSizesTest::emptySizesGiveNothing()
{
    const QIcon icon = tinted(svgIcon(circle), tint);
    QImage canvas(8, 8, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::white);
    const QImage before = canvas.copy();
    QPainter painter(&canvas);
    for (const QSize &size : {QSize(0, 0), QSize(0, 8), QSize(8, 0), QSize(-1, -1), QSize(-8, 8)}) {
        QVERIFY(icon.pixmap(size).isNull());
        QVERIFY(icon.actualSize(size).isEmpty());
        icon.paint(&painter, QRect(QPoint(), size));
    }
    icon.paint(nullptr, QRect(0, 0, 8, 8));
    QCOMPARE(canvas, before);
}

void TintedIconSizesTest::unreadableSourceGivesNothing()
{
    const QRegularExpression warning(QStringLiteral("Cannot read file"));
    QTest::ignoreMessage(QtWarningMsg, warning);
    QTest::ignoreMessage(QtWarningMsg, warning);
    const QIcon source(writeSvg("no picture"));
    const QIcon icon = tinted(source, tint);
    QCOMPARE(icon.isNull(), source.isNull());
    QVERIFY(icon.pixmap(16).isNull());
    QVERIFY(icon.pixmap(16, QIcon::Disabled).isNull());
    const QImage image = painted(icon, {16, 16});
    QCOMPARE(coverage(image), coverage(painted(QIcon(), {16, 16})));
}

void TintedIconSizesTest::hugeSizesTakeBoundedMemory()
{
    const QIcon icon = tinted(svgIcon(circle), tint);
    const QPixmap pixmap = icon.pixmap(100000);
    QVERIFY(pixmap.width() <= 4096 && pixmap.height() <= 4096);
    QVERIFY(icon.pixmap(QSize(100000, 16)).width() <= 4096);
    QCOMPARE(icon.actualSize({100000, 100000}), QSize(100000, 100000));
    QImage canvas(8, 8, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::white);
    QPainter painter(&canvas);
    icon.paint(&painter, QRect(-50000, -50000, 100000, 100000));
    QCOMPARE(canvas.pixelColor(4, 4), tint);
}

/// What fills the largest picture in one direction is taken to be scalable as well.
void TintedIconSizesTest::hugeSizesKeepTheProportions()
{
    const QByteArray wide = R"(<svg xmlns="http://www.w3.org/2000/svg" width="16" height="8"/>)";
    const QByteArray high = R"(<svg xmlns="http://www.w3.org/2000/svg" width="8" height="16"/>)";
    const QSize size(100000, 100000);
    QCOMPARE(tinted(QIcon(writeSvg(wide)), tint).actualSize(size), QSize(100000, 50000));
    QCOMPARE(tinted(QIcon(writeSvg(high)), tint).actualSize(size), QSize(50000, 100000));
    const QIcon small = plainPixmap({16, 8}, foreground);
    QCOMPARE(tinted(small, tint).actualSize(size), QSize(16, 8));
}

QTEST_MAIN(TintedIconSizesTest)
#include "TintedIconSizesTest.moc"
