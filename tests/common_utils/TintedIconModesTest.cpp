#include "common_utils/TestIcons.h"

#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QStyleOption>

namespace {

const QColor tint(0x1c, 0x8a, 0x3c);
const QByteArray circle = R"(<circle cx="8" cy="8" r="6.3" fill="#e5eef4"/>)";
const QByteArray square = R"(<path d="M2 2h12v12H2z" fill="#e5eef4"/>)";

constexpr QIcon::Mode effectModes[] = {QIcon::Disabled, QIcon::Active, QIcon::Selected};

/// A style that shows every mode but the normal one by a transparency of its own.
class FadingStyle : public QProxyStyle
{
public:
    QPixmap generatedIconPixmap(QIcon::Mode mode, const QPixmap &pixmap,
                                const QStyleOption * /*option*/) const override
    {
        if (mode == QIcon::Normal) {
            return pixmap;
        }
        QPixmap faded(pixmap.size());
        faded.fill(Qt::transparent);
        QPainter painter(&faded);
        painter.setOpacity(0.2 * mode);
        painter.drawPixmap(0, 0, pixmap);
        return faded;
    }
};

/// Returns what the application's style makes of \a picture in \a mode.
QImage withEffect(QIcon::Mode mode, const QImage &picture)
{
    QStyleOption option(0);
    option.palette = QGuiApplication::palette();
    return QApplication::style()
        ->generatedIconPixmap(mode, QPixmap::fromImage(picture), &option)
        .toImage()
        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

QIcon pixmapIcon(const QByteArray &content)
{
    return svgIcon(content).pixmap(24);
}

/// Returns an icon of the theme, which is made of \a content.
QIcon themeIcon(const QByteArray &content)
{
    static const QTemporaryDir themes;
    QDir(themes.path()).mkpath(QStringLiteral("Test/scalable"));
    QFile index(themes.filePath(QStringLiteral("Test/index.theme")));
    if (!index.open(QIODevice::WriteOnly)) {
        qFatal("The test can't write its icon theme");
    }
    index.write("[Icon Theme]\nName=Test\nDirectories=scalable\n"
                "[scalable]\nSize=16\nType=Scalable\nMinSize=8\nMaxSize=512\n");
    index.close();
    QFile::copy(writeSvg(svg(content)),
                themes.filePath(QStringLiteral("Test/scalable/action.test.svg")));
    QIcon::setThemeSearchPaths({themes.path()});
    QIcon::setThemeName(QStringLiteral("Test"));
    return QIcon::fromTheme(QStringLiteral("action.test"));
}

using MakeIcon = QIcon (*)(const QByteArray &);

} // namespace

Q_DECLARE_METATYPE(MakeIcon)

class TintedIconModesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void derivedModesAreTintedBeforeTheEffect_data();
    void derivedModesAreTintedBeforeTheEffect();
    void disabledBrushGetsNoDisabledEffect_data();
    void disabledBrushGetsNoDisabledEffect();
    void newStyleGivesItsEffect_data();
    void newStyleGivesItsEffect();
    void pixmapsOfAModeAreTinted();
    void svgsOfAModeAreTinted();
    void statesAreTinted();
};

void TintedIconModesTest::derivedModesAreTintedBeforeTheEffect_data()
{
    QTest::addColumn<MakeIcon>("makeIcon");
    QTest::newRow("svg") << MakeIcon(svgIcon);
    QTest::newRow("pixmap") << MakeIcon(pixmapIcon);
    QTest::newRow("theme") << MakeIcon(themeIcon);
}

void TintedIconModesTest::derivedModesAreTintedBeforeTheEffect()
{
    QFETCH(MakeIcon, makeIcon);
    const QIcon icon = tinted(makeIcon(circle), tint);
    const QImage normal = pixels(icon, 24);
    QCOMPARE(normal.pixelColor(12, 12), tint);
    for (const QIcon::Mode mode : effectModes) {
        for (const QIcon::State state : {QIcon::Off, QIcon::On}) {
            QCOMPARE(pixels(icon, 24, mode, state), withEffect(mode, normal));
        }
    }
    QVERIFY(pixels(icon, 24, QIcon::Disabled) != normal);
    QVERIFY(pixels(icon, 24, QIcon::Selected) != normal);
}

void TintedIconModesTest::disabledBrushGetsNoDisabledEffect_data()
{
    derivedModesAreTintedBeforeTheEffect_data();
}

void TintedIconModesTest::disabledBrushGetsNoDisabledEffect()
{
    QFETCH(MakeIcon, makeIcon);
    const QIcon icon = tinted(makeIcon(circle), tint, true);
    const QImage normal = pixels(icon, 24);
    QCOMPARE(normal.pixelColor(12, 12), tint);
    QCOMPARE(pixels(icon, 24, QIcon::Disabled), normal);
    QCOMPARE(pixels(icon, 24, QIcon::Selected), withEffect(QIcon::Selected, normal));
}

void TintedIconModesTest::newStyleGivesItsEffect_data()
{
    derivedModesAreTintedBeforeTheEffect_data();
}

void TintedIconModesTest::newStyleGivesItsEffect()
{
    QFETCH(MakeIcon, makeIcon);
    const QIcon source = makeIcon(circle);
    const QIcon known = tinted(source, tint);
    const QImage normal = pixels(known, 24);
    for (const QIcon::Mode mode : effectModes) {
        // The source, too, remembers what it has shown.
        pixels(source, 24, mode);
        pixels(known, 24, mode);
    }
    QApplication::setStyle(new FadingStyle);
    const QIcon fresh = tinted(source, QColor(Qt::red));
    for (const QIcon::Mode mode : effectModes) {
        QCOMPARE(pixels(known, 24, mode), withEffect(mode, normal));
        QCOMPARE(pixels(fresh, 24, mode), withEffect(mode, pixels(fresh, 24)));
        QVERIFY(pixels(fresh, 24, mode) != pixels(fresh, 24));
    }
}

void TintedIconModesTest::pixmapsOfAModeAreTinted()
{
    for (const QIcon::Mode mode : effectModes) {
        QIcon source = pixmapIcon(circle);
        source.addPixmap(svgIcon(square).pixmap(24), mode);
        const QIcon icon = tinted(source, tint);
        const QImage own = pixels(tinted(pixmapIcon(square), tint), 24);
        QCOMPARE(pixels(icon, 24, mode), own);
        QVERIFY(pixels(icon, 24) != own);
        const QIcon disabled = tinted(source, tint, true);
        QCOMPARE(pixels(disabled, 24, mode), own);
    }
}

void TintedIconModesTest::svgsOfAModeAreTinted()
{
    for (const QIcon::Mode mode : effectModes) {
        QIcon source = svgIcon(circle);
        source.addFile(writeSvg(svg(square)), QSize(), mode);
        const QIcon icon = tinted(source, tint);
        const QImage own = pixels(tinted(svgIcon(square), tint), 24);
        QCOMPARE(pixels(icon, 24, mode), own);
        QVERIFY(pixels(icon, 24) != own);
        const QIcon disabled = tinted(source, tint, true);
        QCOMPARE(pixels(disabled, 24, mode), own);
    }
}

void TintedIconModesTest::statesAreTinted()
{
    QIcon svgSource = svgIcon(circle);
    svgSource.addFile(writeSvg(svg(square)), QSize(), QIcon::Normal, QIcon::On);
    QIcon pixmapSource = pixmapIcon(circle);
    pixmapSource.addPixmap(svgIcon(square).pixmap(24), QIcon::Normal, QIcon::On);
    for (const QIcon &source : {svgSource, pixmapSource}) {
        const QIcon icon = tinted(source, tint);
        const QImage off = pixels(tinted(svgIcon(circle), tint), 24);
        const QImage on = pixels(tinted(svgIcon(square), tint), 24);
        QCOMPARE(pixels(icon, 24), off);
        QCOMPARE(pixels(icon, 24, QIcon::Normal, QIcon::On), on);
        QCOMPARE(pixels(icon, 24, QIcon::Disabled), withEffect(QIcon::Disabled, off));
        QCOMPARE(pixels(icon, 24, QIcon::Disabled, QIcon::On), withEffect(QIcon::Disabled, on));
    }
}

QTEST_MAIN(TintedIconModesTest)
#include "TintedIconModesTest.moc"
