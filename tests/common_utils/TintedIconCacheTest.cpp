#include "common_utils/TestIcons.h"

#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QStyleFactory>

namespace {

const QColor tint(0x1c, 0x8a, 0x3c);

/// An icon that counts how often its source is asked for anything.
class CountedIcon
{
public:
    explicit CountedIcon(const QBrush &brush = tint)
        : icon(tinted(QIcon(new CountingEngine(&m_count)), brush))
    {
    }

    /// Returns how often the source is asked when \a use is called.
    template <typename Use>
    int asked(Use use)
    {
        const int before = m_count;
        use();
        return m_count - before;
    }

private:
    int m_count = 0;

public:
    QIcon icon;
};

} // namespace

class TintedIconCacheTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void secondPaintIsKept();
    void everyLookIsKept();
    void copiesShareWhatIsKept();
    void sameTintIsTheSameIcon();
    void otherBrushesAreOtherIcons();
    void styleChangeRendersAnew();
    void paletteChangeRendersEffectsAnew();
    void iconThemeChangeRendersAnew();
    void newFallbackFolderRendersAnew();
    void manySizesAreNotAllKept();
    void largePictureIsKept();
    void handsOutPixmapsWithoutCopying();
};

void TintedIconCacheTest::secondPaintIsKept()
{
    CountedIcon counted;
    const auto paint = [&] { painted(counted.icon, {16, 16}, 2); };
    QVERIFY(counted.asked(paint) > 0);
    QCOMPARE(counted.asked(paint), 0);
    QVERIFY(counted.asked([&] { painted(counted.icon, {17, 17}, 2); }) > 0);
}

void TintedIconCacheTest::everyLookIsKept()
{
    CountedIcon counted;
    const auto show = [&] {
        for (const QIcon::Mode mode :
             {QIcon::Normal, QIcon::Disabled, QIcon::Active, QIcon::Selected}) {
            for (const QIcon::State state : {QIcon::Off, QIcon::On}) {
                pixels(counted.icon, 16, mode, state);
                counted.icon.actualSize({16, 16}, mode, state);
            }
        }
    };
    QVERIFY(counted.asked(show) > 0);
    QCOMPARE(counted.asked(show), 0);
}

void TintedIconCacheTest::copiesShareWhatIsKept()
{
    CountedIcon counted;
    pixels(counted.icon, 16);
    const QIcon copy = counted.icon;
    QIcon detached = counted.icon;
    detached.detach();
    QCOMPARE(counted.asked([&] { pixels(copy, 16); }), 0);
    QCOMPARE(counted.asked([&] { pixels(detached, 16); }), 0);
    QCOMPARE(pixels(detached, 16), pixels(copy, 16));
}

void TintedIconCacheTest::sameTintIsTheSameIcon()
{
    QIcon source = plainPixmap({16, 16}, foreground);
    const QIcon first = tinted(source, tint);
    QCOMPARE(tinted(source, tint).cacheKey(), first.cacheKey());
    QVERIFY(tinted(source, tint, true).cacheKey() != first.cacheKey());
    source.addPixmap(plainPixmap({32, 32}, foreground));
    QVERIFY(tinted(source, tint).cacheKey() != first.cacheKey());
    QCOMPARE(pixels(tinted(source, tint), 32).size(), QSize(32, 32));
}

void TintedIconCacheTest::otherBrushesAreOtherIcons()
{
    const QIcon source = plainPixmap({16, 16}, foreground);
    QLinearGradient toRight(0, 0, 1, 0);
    toRight.setCoordinateMode(QGradient::ObjectBoundingMode);
    toRight.setStops({{0, Qt::red}, {1, Qt::blue}});
    QLinearGradient toLeft = toRight;
    toLeft.setStops({{0, Qt::blue}, {1, Qt::red}});
    for (int round = 0; round < 2; ++round) {
        QCOMPARE(pixels(tinted(source, tint), 16).pixelColor(8, 8), tint);
        QCOMPARE(pixels(tinted(source, QColor(Qt::red)), 16).pixelColor(8, 8), QColor(Qt::red));
        QVERIFY(pixels(tinted(source, toRight), 16).pixelColor(0, 8).red() > 200);
        QVERIFY(pixels(tinted(source, toLeft), 16).pixelColor(0, 8).blue() > 200);
    }
}

void TintedIconCacheTest::styleChangeRendersAnew()
{
    CountedIcon counted;
    const auto show = [&] { pixels(counted.icon, 16, QIcon::Disabled); };
    show();
    QCOMPARE(counted.asked(show), 0);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("windows")));
    QVERIFY(counted.asked(show) > 0);
    QCOMPARE(counted.asked(show), 0);
}

void TintedIconCacheTest::paletteChangeRendersEffectsAnew()
{
    CountedIcon counted;
    const auto showNormal = [&] { pixels(counted.icon, 16); };
    const auto showSelected = [&] { pixels(counted.icon, 16, QIcon::Selected); };
    showNormal();
    showSelected();
    const QIcon plain = tinted(plainPixmap({16, 16}, foreground), tint);
    const QImage before = pixels(plain, 16, QIcon::Selected);
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::Highlight, Qt::magenta);
    QApplication::setPalette(palette);
    QCOMPARE(counted.asked(showNormal), 0);
    QVERIFY(counted.asked(showSelected) > 0);
    QVERIFY(pixels(plain, 16, QIcon::Selected) != before);
}

void TintedIconCacheTest::iconThemeChangeRendersAnew()
{
    const QByteArray whole = svg(R"(<path d="M0 0h16v16H0z" fill="#e5eef4"/>)");
    const QByteArray quarter = svg(R"(<path d="M0 0h4v16H0z" fill="#e5eef4"/>)");
    QTemporaryDir themes;
    for (const char *name : {"Whole", "Quarter"}) {
        const QString folder = themes.filePath(QLatin1String(name) + QLatin1String("/scalable"));
        QVERIFY(QDir().mkpath(folder));
        QFile index(themes.filePath(QLatin1String(name) + QLatin1String("/index.theme")));
        QVERIFY(index.open(QIODevice::WriteOnly));
        index.write("[Icon Theme]\nName=Test\nDirectories=scalable\n"
                    "[scalable]\nSize=16\nType=Scalable\nMinSize=8\nMaxSize=512\n");
        const QByteArray document = QByteArray(name) == "Whole" ? whole : quarter;
        QVERIFY(QFile::copy(writeSvg(document), folder + QLatin1String("/action.test.svg")));
    }
    QIcon::setThemeSearchPaths({themes.path()});
    QIcon::setThemeName(QStringLiteral("Whole"));
    const QIcon icon = tinted(QIcon::fromTheme(QStringLiteral("action.test")), tint);
    QCOMPARE(pixels(icon, 16).pixelColor(12, 8), tint);
    QIcon::setThemeName(QStringLiteral("Quarter"));
    QCOMPARE(pixels(icon, 16).pixelColor(12, 8).alpha(), 0);
    QCOMPARE(pixels(icon, 16).pixelColor(2, 8), tint);

    const QString file = themes.filePath(QStringLiteral("Quarter/scalable/action.test.svg"));
    QVERIFY(QFile::remove(file));
    QVERIFY(QFile::copy(writeSvg(whole), file));
    QIcon::setThemeSearchPaths({themes.path()});
    QCOMPARE(pixels(icon, 16).pixelColor(12, 8), tint);
}

void TintedIconCacheTest::newFallbackFolderRendersAnew()
{
    const QTemporaryDir folders;
    for (const char *width : {"16", "4"}) {
        const QString folder = folders.filePath(QLatin1String(width));
        QVERIFY(QDir().mkpath(folder));
        const QByteArray document =
            svg(QByteArray("<path d=\"M0 0h") + width + "v16H0z\" fill=\"#e5eef4\"/>");
        QVERIFY(QFile::copy(writeSvg(document), folder + QLatin1String("/action.test.svg")));
    }
    QIcon::setThemeName(QStringLiteral("NoSuchTheme"));
    QIcon::setFallbackSearchPaths({folders.filePath(QStringLiteral("16"))});
    const QIcon icon = tinted(QIcon::fromTheme(QStringLiteral("action.test")), tint);
    QCOMPARE(pixels(icon, 16).pixelColor(12, 8), tint);
    QIcon::setFallbackSearchPaths({folders.filePath(QStringLiteral("4"))});
    QCOMPARE(pixels(icon, 16).pixelColor(12, 8).alpha(), 0);
    QCOMPARE(pixels(icon, 16).pixelColor(2, 8), tint);
}

void TintedIconCacheTest::manySizesAreNotAllKept()
{
    CountedIcon counted;
    for (int size = 200; size < 400; ++size) {
        pixels(counted.icon, size);
    }
    QVERIFY(counted.asked([&] { pixels(counted.icon, 200); }) > 0);
    QCOMPARE(counted.asked([&] { pixels(counted.icon, 399); }), 0);
}

void TintedIconCacheTest::largePictureIsKept()
{
    CountedIcon counted;
    const auto show = [&] { QCOMPARE(pixels(counted.icon, 2500).width(), 2500); };
    show();
    QCOMPARE(counted.asked(show), 0);
}

void TintedIconCacheTest::handsOutPixmapsWithoutCopying()
{
    const CountedIcon counted;
    QCOMPARE(counted.icon.pixmap(16).cacheKey(), counted.icon.pixmap(16).cacheKey());
}

QTEST_MAIN(TintedIconCacheTest)
#include "TintedIconCacheTest.moc"
