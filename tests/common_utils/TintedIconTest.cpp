#include "common_utils/TestIcons.h"

#include <common_utils/Helpers.h>

#include <QtCore/QBuffer>
#include <QtCore/QDataStream>
#include <QtGui/QPainter>
#include <QtTest/QtTest>

#include <limits>

using TARN::Helpers::getModifiedIconWithForegroundBrush;

namespace {

const QColor tint(0x1c, 0x8a, 0x3c);

const QByteArray circle = R"(<circle cx="8" cy="8" r="6.3" fill="#e5eef4"/>)";
const QByteArray lines = R"(<path d="M4 4l8 8M12 4l-8 8" fill="none" stroke="#e5eef4")"
                         R"( stroke-width="1.25" stroke-linecap="round"/>)";
const QByteArray faintCircle =
    R"(<circle cx="8" cy="8" r="6.3" fill="#e5eef4" fill-opacity="0.5"/>)";
const QByteArray faintGroup =
    R"(<g opacity="0.3"><circle cx="8" cy="8" r="6.3" fill="#e5eef4"/></g>)";
const QByteArray glyphOnDisc =
    R"(<circle cx="8" cy="8" r="7" fill="#cf3f47"/>)"
    R"(<path d="M5.5 5.5l5 5M10.5 5.5l-5 5" fill="none" stroke="#e5eef4" stroke-width="1.75"/>)";
const QByteArray discUnderGlyph =
    R"(<circle cx="8" cy="8" r="7" fill="#e5eef4"/>)"
    R"(<path d="M5 8l2 2 4-4" fill="none" stroke="#203050" stroke-width="1.75"/>)";
const QByteArray sideBySide = R"(<path d="M1 1h7.3v14H1z" fill="#e5eef4"/>)"
                              R"(<path d="M8.3 1H15v14H8.3z" fill="#3050d0"/>)";
const QByteArray overlapping = R"(<circle cx="6" cy="6" r="5" fill="#3050d0"/>)"
                               R"(<circle cx="10" cy="10" r="5" fill="#e5eef4"/>)";
const QByteArray besideWhite = R"(<circle cx="5" cy="8" r="4.3" fill="#ffffff"/>)"
                               R"(<circle cx="12" cy="8" r="2.8" fill="#e5eef4"/>)";
const QByteArray withoutForeground = R"(<circle cx="5" cy="8" r="4.3" fill="#ffffff"/>)"
                                     R"(<circle cx="11" cy="8" r="4.3" fill="#cf3f47"/>)"
                                     R"(<path d="M2 2.5h9" fill="none" stroke="#e8f1f7"/>)";

/// Returns what \a content looks like when it is drawn in \a color in the first place.
QImage drawnIn(QByteArray content, const QColor &color, int size)
{
    content.replace("#e5eef4", color.name().toLatin1());
    return pixels(svgIcon(content), size);
}

bool isNear(const QColor &a, const QColor &b)
{
    return qAbs(a.red() - b.red()) < 16 && qAbs(a.green() - b.green()) < 16 &&
           qAbs(a.blue() - b.blue()) < 16;
}

} // namespace

class TintedIconTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void looksAsIfDrawnInTheOtherColor_data();
    void looksAsIfDrawnInTheOtherColor();
    void leavesOtherColorsAlone_data();
    void leavesOtherColorsAlone();
    void leavesSimilarColorsAlone();
    void replacesExactly();
    void transparentBrushMakesTransparent();
    void gradientSpansTheIcon();
    void logicalGradientIsInDeviceIndependentPixels();
    void textureIsRepeated();
    void alphaOfTheReplacedColorIsIgnored();
    void withoutABrushIsUnchanged();
    void nullStaysNull();
    void keepsName();
    void sourceIsNotChanged();
    void whatIsAddedIsTintedToo();
    void isStreamedAsPictures();
};

void TintedIconTest::looksAsIfDrawnInTheOtherColor_data()
{
    // A mixture is rounded when it is drawn and when it is taken apart.
    constexpr int rounding = 2;
    // What white and the nearly white foreground have in common can't be told apart better.
    constexpr int similarity = 5;
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("tolerance");
    QTest::newRow("circle") << circle << 0;
    QTest::newRow("lines") << lines << 0;
    QTest::newRow("faint circle") << faintCircle << 1;
    QTest::newRow("faint group") << faintGroup << 1;
    QTest::newRow("glyph on disc") << glyphOnDisc << rounding;
    QTest::newRow("disc under glyph") << discUnderGlyph << rounding;
    QTest::newRow("side by side") << sideBySide << rounding;
    QTest::newRow("overlapping") << overlapping << rounding;
    QTest::newRow("beside white") << besideWhite << similarity;
}

void TintedIconTest::looksAsIfDrawnInTheOtherColor()
{
    QFETCH(QByteArray, content);
    QFETCH(int, tolerance);
    for (const QColor &color : {tint, QColor(Qt::black), QColor(Qt::red)}) {
        for (const int size : {16, 20, 24, 32, 48}) {
            const QImage image = pixels(tinted(svgIcon(content), color), size);
            QVERIFY(largestDifference(image, drawnIn(content, color, size)) <= tolerance);
        }
    }
}

void TintedIconTest::leavesOtherColorsAlone_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("without foreground") << withoutForeground;
    QTest::newRow("similar") << QByteArray(circle).replace("#e5eef4", "#e7f0f6");
    QTest::newRow("similar lines") << QByteArray(lines).replace("#e5eef4", "#e1eaf0");
}

void TintedIconTest::leavesOtherColorsAlone()
{
    QFETCH(QByteArray, content);
    for (const int size : {16, 24, 32, 64}) {
        const QIcon icon = svgIcon(content);
        QCOMPARE(pixels(tinted(icon, tint), size), pixels(icon, size));
    }
}

void TintedIconTest::leavesSimilarColorsAlone()
{
    QPixmap pixmap(16, 16);
    pixmap.fill(foreground);
    QPainter painter(&pixmap);
    const QColor similar(foreground.red() - 2, foreground.green(), foreground.blue());
    painter.fillRect(8, 0, 8, 16, similar);
    painter.end();
    const QImage image = pixels(tinted(pixmap, tint), 16);
    QCOMPARE(image.copy(0, 0, 8, 16),
             plainPixmap({8, 16}, tint).toImage().convertToFormat(image.format()));
    QCOMPARE(image.copy(8, 0, 8, 16),
             plainPixmap({8, 16}, similar).toImage().convertToFormat(image.format()));
}

void TintedIconTest::replacesExactly()
{
    const QImage image = pixels(tinted(plainPixmap({16, 16}, foreground), tint), 16);
    for (int y = 0; y < 16; ++y) {
        for (int x = 0; x < 16; ++x) {
            QCOMPARE(image.pixelColor(x, y), tint);
        }
    }
}

void TintedIconTest::transparentBrushMakesTransparent()
{
    const QIcon source = svgIcon(sideBySide);
    QColor half(200, 40, 40, 128);
    const QImage image = pixels(tinted(source, half), 16);
    QCOMPARE(image.pixelColor(4, 8).alpha(), 128);
    QCOMPARE(image.pixel(4, 8), plainPixmap({1, 1}, half).toImage().pixel(0, 0));
    QCOMPARE(image.pixelColor(12, 8), QColor(0x30, 0x50, 0xd0));
    const QImage none = pixels(tinted(svgIcon(circle), Qt::transparent), 16);
    QCOMPARE(
        largestDifference(none, QImage(pixels(QIcon(plainPixmap({16, 16}, Qt::transparent)), 16))),
        0);
}

void TintedIconTest::gradientSpansTheIcon()
{
    QLinearGradient gradient(0, 0, 1, 0);
    gradient.setCoordinateMode(QGradient::ObjectBoundingMode);
    gradient.setColorAt(0, Qt::red);
    gradient.setColorAt(1, Qt::blue);
    for (const int size : {16, 32, 64}) {
        const QImage image = pixels(tinted(plainPixmap({64, 64}, foreground), gradient), size);
        QVERIFY(isNear(image.pixelColor(0, size / 2), Qt::red));
        QVERIFY(isNear(image.pixelColor(size - 1, size / 2), Qt::blue));
        QVERIFY(isNear(image.pixelColor(size / 2, 0), QColor(127, 0, 127)));
    }
}

void TintedIconTest::logicalGradientIsInDeviceIndependentPixels()
{
    QLinearGradient gradient(0, 0, 32, 0);
    gradient.setColorAt(0, Qt::red);
    gradient.setColorAt(1, Qt::blue);
    const QIcon icon = tinted(svgIcon(R"(<path d="M0 0h16v16H0z" fill="#e5eef4"/>)"), gradient);
    for (const qreal ratio : {1.0, 1.25, 2.0}) {
        const QImage image = painted(icon, {16, 16}, ratio);
        QVERIFY(isNear(image.pixelColor(0, 8), Qt::red));
        QVERIFY(isNear(image.pixelColor(image.width() - 1, 8), QColor(127, 0, 127)));
    }
}

void TintedIconTest::textureIsRepeated()
{
    QPixmap texture(4, 4);
    texture.fill(Qt::red);
    QPainter painter(&texture);
    painter.fillRect(2, 0, 2, 4, Qt::blue);
    painter.end();
    const QImage image = pixels(tinted(plainPixmap({16, 16}, foreground), QBrush(texture)), 16);
    for (int x = 0; x < 16; ++x) {
        QCOMPARE(image.pixelColor(x, 3), QColor(x % 4 < 2 ? Qt::red : Qt::blue));
    }
}

void TintedIconTest::alphaOfTheReplacedColorIsIgnored()
{
    QColor faint = foreground;
    faint.setAlpha(10);
    const QIcon icon =
        getModifiedIconWithForegroundBrush(plainPixmap({16, 16}, foreground), faint, tint, false);
    QCOMPARE(pixels(icon, 16).pixelColor(8, 8), tint);
}

void TintedIconTest::withoutABrushIsUnchanged()
{
    const QIcon source = plainPixmap({16, 16}, foreground);
    const QBrush none(tint, Qt::NoBrush);
    const QBrush gradient = QLinearGradient(0, 0, 1, 1);
    const QBrush texture(plainPixmap({4, 4}, foreground));
    for (const QBrush &from : {none, gradient, texture}) {
        QCOMPARE(getModifiedIconWithForegroundBrush(source, from, tint, false).cacheKey(),
                 source.cacheKey());
    }
    QCOMPARE(getModifiedIconWithForegroundBrush(source, foreground, none, true).cacheKey(),
             source.cacheKey());
}

void TintedIconTest::nullStaysNull()
{
    QVERIFY(tinted(QIcon(), tint).isNull());
    QVERIFY(tinted(QIcon::fromTheme(QStringLiteral("no such icon")), tint).isNull());
    QVERIFY(!tinted(plainPixmap({16, 16}, foreground), tint).isNull());
}

void TintedIconTest::keepsName()
{
    QTemporaryDir themes;
    QVERIFY(QDir(themes.path()).mkpath(QStringLiteral("Test/scalable")));
    QFile index(themes.filePath(QStringLiteral("Test/index.theme")));
    QVERIFY(index.open(QIODevice::WriteOnly));
    index.write("[Icon Theme]\nName=Test\nDirectories=scalable\n"
                "[scalable]\nSize=16\nType=Scalable\nMinSize=8\nMaxSize=512\n");
    index.close();
    QVERIFY(QFile::copy(writeSvg(svg(circle)),
                        themes.filePath(QStringLiteral("Test/scalable/action.test.svg"))));
    QIcon::setThemeSearchPaths({themes.path()});
    QIcon::setThemeName(QStringLiteral("Test"));
    const QIcon source = QIcon::fromTheme(QStringLiteral("action.test"));
    const QIcon icon = tinted(source, tint);
    QCOMPARE(icon.name(), QStringLiteral("action.test"));
    QCOMPARE(icon.availableSizes(), source.availableSizes());
    QCOMPARE(icon.actualSize({24, 24}), source.actualSize({24, 24}));
    QCOMPARE(pixels(icon, 24), drawnIn(circle, tint, 24));
}

void TintedIconTest::sourceIsNotChanged()
{
    const QIcon source = svgIcon(circle);
    const QImage before = pixels(source, 24);
    const QIcon green = tinted(source, tint);
    const QIcon red = tinted(source, QColor(Qt::red));
    QCOMPARE(pixels(green, 24).pixelColor(12, 12), tint);
    QCOMPARE(pixels(red, 24).pixelColor(12, 12), QColor(Qt::red));
    QCOMPARE(pixels(green, 24).pixelColor(12, 12), tint);
    QCOMPARE(pixels(source, 24), before);
}

void TintedIconTest::whatIsAddedIsTintedToo()
{
    const QIcon first = tinted(plainPixmap({16, 16}, foreground), tint);
    QIcon extended = first;
    QCOMPARE(pixels(extended, 16).size(), QSize(16, 16));
    extended.addPixmap(plainPixmap({32, 32}, foreground));
    QCOMPARE(pixels(extended, 32), pixels(tinted(plainPixmap({32, 32}, foreground), tint), 32));
    QCOMPARE(pixels(first, 32).size(), QSize(16, 16));
}

void TintedIconTest::isStreamedAsPictures()
{
    QByteArray bytes;
    QDataStream output(&bytes, QIODevice::WriteOnly);
    const QIcon icon = tinted(svgIcon(sideBySide), tint, true);
    output << icon << QStringLiteral("what follows");
    QDataStream input(bytes);
    QIcon read;
    QString following;
    input >> read >> following;
    QCOMPARE(following, QStringLiteral("what follows"));
    for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Disabled, QIcon::Selected}) {
        QCOMPARE(pixels(read, 24, mode), pixels(icon, 24, mode));
    }
}

QTEST_MAIN(TintedIconTest)
#include "TintedIconTest.moc"
