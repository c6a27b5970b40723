#include <catalogue/Catalogue.h>
#include <common_utils/Contrast.h>
#include <readers/QPaletteReader.h>
#include <readers/ThemeConfigurationReader.h>
#include <resources/ThemeResources.h>
#include <theme/BaseThemeSettings.h>
#include <theme/Theme.h>
#include <theme/ThemeFactory.h>

#include <QtCore/QDir>
#include <QtCore/QMetaEnum>
#include <QtCore/QRegularExpression>
#include <QtGui/QFontDatabase>
#include <QtGui/QIcon>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyle>

using TARN::BaseThemeSettings;
using TARN::QPaletteReader;
using TARN::ThemeConfigurationReader;
using TARN::ThemeFactory;
using TARN::ThemeFont;
using TARN::ThemeResources;
using TARN::Helpers::contrastRatio;
using TARN::Helpers::relativeLuminance;

namespace {

const QString repository = QStringLiteral(MOX_SHIPPED_THEMES);
const QStringList themes{QStringLiteral("Dark"), QStringLiteral("HighContrast"),
                         QStringLiteral("Light")};
const QString disabledSuffix = QStringLiteral("Disabled");
const QString foregroundBrush = QStringLiteral("ForegroundBrush");

/// Contrast ratios: for the window's own text, for any other text, and for disabled text.
constexpr double windowTextContrast = 7.0;
constexpr double textContrast = 4.5;
constexpr double disabledTextContrast = 2.0;

ThemeConfigurationReader readConfiguration(const QString &theme)
{
    return ThemeConfigurationReader(repository + QLatin1Char('/') + theme +
                                    QLatin1String("/config.xml"));
}

QPaletteReader readPalette(const QString &theme, const QPalette &base)
{
    const ThemeConfigurationReader configuration = readConfiguration(theme);
    return {repository + QLatin1Char('/') + theme + QLatin1String("/qpaletteMapping.xml"),
            configuration.getBrushesMap(), configuration.getColorsMap(), base};
}

/// Applies \a theme to the application, in which nothing of a former theme is left.
void apply(const QString &theme)
{
    qApp->setProperty("appLiveThemeSwitch", true);
    ThemeFactory::getInstance()->setThemesRepositoryPath(repository);
    ThemeFactory::getInstance()->getTheme(theme)->customize(qApp);
}

/// Returns what the eye sees where \a color is painted over the opaque \a ground.
QColor painted(const QColor &color, const QColor &ground)
{
    const auto blend = [alpha = color.alphaF()](double above, double below) {
        return above * alpha + below * (1 - alpha);
    };
    return QColor::fromRgbF(blend(color.redF(), ground.redF()),
                            blend(color.greenF(), ground.greenF()),
                            blend(color.blueF(), ground.blueF()));
}

/// Returns the contrast ratio (1 to 21) of \a text on the opaque \a ground.
double contrast(const QColor &text, const QColor &ground)
{
    return contrastRatio(painted(text, ground), ground);
}

/// Returns the contrast of a \a text role on a \a ground role, which lies on the base.
double contrast(const QPalette &palette, QPalette::ColorGroup group, QPalette::ColorRole text,
                QPalette::ColorRole ground)
{
    return contrast(palette.color(group, text),
                    painted(palette.color(group, ground), palette.color(group, QPalette::Base)));
}

/// Returns the names of all button and input brushes without the part that they paint.
QStringList brushStems()
{
    QStringList stems;
    for (const char *family : {"Button", "ToggleButton", "Input"}) {
        for (const QString &kind : TARN::Catalogue::kinds()) {
            for (const QString &state : TARN::Catalogue::states()) {
                stems += QLatin1String(family) + kind + state;
            }
        }
    }
    return stems;
}

} // namespace

/// The themes that the library ships.
class ShippedThemesTest : public QObject
{
    Q_OBJECT

private:
    static void addThemeRows()
    {
        QTest::addColumn<QString>("theme");
        for (const QString &theme : themes) {
            QTest::newRow(qPrintable(theme)) << theme;
        }
    }

private Q_SLOTS:
    void areListedByFolder()
    {
        ThemeFactory factory;
        factory.setThemesRepositoryPath(repository);
        QCOMPARE(factory.getAvailableThemes(), themes);
    }

    void displayNameIsThatOfTheFolders_data() { addThemeRows(); }
    void displayNameIsThatOfTheFolders()
    {
        QFETCH(QString, theme);
        const QDir directory(repository + QLatin1Char('/') + theme);
        const BaseThemeSettings settings(directory.filePath(QStringLiteral("theme.xml")));
        QCOMPARE(settings.getStatus(), 0);
        QCOMPARE(settings.getName(), theme);
        QVERIFY(directory.exists(QStringLiteral("Images/%1/scalable").arg(theme)));
    }

    void configurationIsSound_data() { addThemeRows(); }
    void configurationIsSound()
    {
        QFETCH(QString, theme);
        const ThemeConfigurationReader configuration = readConfiguration(theme);
        QCOMPARE(configuration.getStatus(), 0);
        QCOMPARE(configuration.getDisabledFactorsMap().size(), 4);
        QVERIFY(configuration.getOpacitiesMap().value(QStringLiteral("RubberBandOpacity")) > 0);
        const QMap<QString, int> &radii = configuration.getCornerRadiusMap();
        QCOMPARE(radii.size(), 4);
        QVERIFY(radii.value(QStringLiteral("SmallSize")) < radii.value(QStringLiteral("BaseSize")));
        QVERIFY(radii.value(QStringLiteral("BaseSize")) < radii.value(QStringLiteral("LargeSize")));
    }

    void fontsAreOfTheConfiguredFamily_data() { addThemeRows(); }
    void fontsAreOfTheConfiguredFamily()
    {
        QFETCH(QString, theme);
        const QString family = readConfiguration(theme).getFont().getFont(ThemeFont::Base).family();
        const QFileInfoList files =
            QDir(repository + QLatin1Char('/') + theme + QLatin1String("/Fonts"))
                .entryInfoList({QStringLiteral("*.ttf")});
        QVERIFY(!files.isEmpty());
        for (const QFileInfo &file : files) {
            const int id = QFontDatabase::addApplicationFont(file.absoluteFilePath());
            QVERIFY2(QFontDatabase::applicationFontFamilies(id).contains(family),
                     qPrintable(file.fileName()));
        }
    }

    void mappingSetsEveryPaletteRole_data() { addThemeRows(); }
    void mappingSetsEveryPaletteRole()
    {
        QFETCH(QString, theme);
        const QColor untouched(255, 0, 254);
        QPalette base;
        for (int role = 0; role < QPalette::NColorRoles; ++role) {
            base.setColor(static_cast<QPalette::ColorRole>(role), untouched);
        }
        const QPaletteReader reader = readPalette(theme, base);
        QCOMPARE(reader.getStatus(), 0);
        const QPalette palette = reader.deserialize();
        for (int role = 0; role < QPalette::NColorRoles; ++role) {
            if (role == QPalette::NoRole) {
                continue;
            }
            for (const auto group : {QPalette::Active, QPalette::Inactive}) {
                const auto colorRole = static_cast<QPalette::ColorRole>(role);
                QVERIFY2(palette.color(group, colorRole) != untouched,
                         QMetaEnum::fromType<QPalette::ColorRole>().valueToKey(role));
            }
        }
    }

    void defineTheSameNames_data() { addThemeRows(); }
    void defineTheSameNames()
    {
        QFETCH(QString, theme);
        const ThemeConfigurationReader first = readConfiguration(themes.first());
        const ThemeConfigurationReader other = readConfiguration(theme);
        QCOMPARE(other.getBrushesMap().keys(), first.getBrushesMap().keys());
        QCOMPARE(other.getColorsMap().keys(), first.getColorsMap().keys());
        QCOMPARE(other.getOpacitiesMap().keys(), first.getOpacitiesMap().keys());
    }

    void areDarkAndLight()
    {
        const QPalette dark = readPalette(QStringLiteral("Dark"), QPalette()).deserialize();
        const QPalette light = readPalette(QStringLiteral("Light"), QPalette()).deserialize();
        for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Button}) {
            QVERIFY(relativeLuminance(dark.color(role)) < 0.1);
            QVERIFY(relativeLuminance(light.color(role)) > 0.8);
        }
    }

    void styleSheetsResolve_data() { addThemeRows(); }
    void styleSheetsResolve()
    {
        QFETCH(QString, theme);
        apply(theme);
        const QString styleSheet = qApp->styleSheet();
        QVERIFY2(!styleSheet.contains(QRegularExpression(QStringLiteral("@[\\w/]+@"))),
                 qPrintable(styleSheet));
        const QColor main =
            readConfiguration(theme).getColorsMap().value(QStringLiteral("MainColor"));
        QVERIFY(styleSheet.contains(main.name()));
    }

    void textIsLegible_data() { addThemeRows(); }
    void textIsLegible()
    {
        QFETCH(QString, theme);
        const QPalette palette = readPalette(theme, QPalette()).deserialize();
        for (const auto group : {QPalette::Active, QPalette::Inactive}) {
            const auto ratio = [&](QPalette::ColorRole text, QPalette::ColorRole ground) {
                return contrast(palette, group, text, ground);
            };
            QVERIFY(ratio(QPalette::WindowText, QPalette::Window) >= windowTextContrast);
            QVERIFY(ratio(QPalette::Text, QPalette::Base) >= textContrast);
            QVERIFY(ratio(QPalette::Text, QPalette::AlternateBase) >= textContrast);
            QVERIFY(ratio(QPalette::PlaceholderText, QPalette::Base) >= textContrast);
            QVERIFY(ratio(QPalette::ButtonText, QPalette::Button) >= textContrast);
            QVERIFY(ratio(QPalette::ToolTipText, QPalette::ToolTipBase) >= textContrast);
            QVERIFY(ratio(QPalette::HighlightedText, QPalette::Highlight) >= textContrast);
            QVERIFY(ratio(QPalette::Link, QPalette::Window) >= textContrast);
            QVERIFY(ratio(QPalette::LinkVisited, QPalette::Window) >= textContrast);
        }
    }

    void disabledTextIsWeakerButLegible_data() { addThemeRows(); }
    void disabledTextIsWeakerButLegible()
    {
        QFETCH(QString, theme);
        apply(theme);
        const QPalette palette = QApplication::style()->standardPalette();
        const QPair<QPalette::ColorRole, QPalette::ColorRole> pairs[] = {
            {QPalette::WindowText, QPalette::Window},
            {QPalette::Text, QPalette::Base},
            {QPalette::PlaceholderText, QPalette::Base},
            {QPalette::ButtonText, QPalette::Button},
            {QPalette::HighlightedText, QPalette::Highlight},
            {QPalette::Link, QPalette::Window}};
        for (const auto &[text, ground] : pairs) {
            const double ratio = contrast(palette, QPalette::Disabled, text, ground);
            QVERIFY2(ratio >= disabledTextContrast,
                     qPrintable(QStringLiteral("role %1: %2").arg(text).arg(ratio)));
            QVERIFY(ratio < contrast(palette, QPalette::Active, text, ground));
        }
    }

    void buttonTextIsLegible_data() { addThemeRows(); }
    void buttonTextIsLegible()
    {
        QFETCH(QString, theme);
        const ThemeConfigurationReader configuration = readConfiguration(theme);
        const QMap<QString, QBrush> &brushes = configuration.getBrushesMap();
        const QColor window = brushes.value(QStringLiteral("BackgroundBrush")).color();
        const auto ratio = [&](const QString &stem, const QString &suffix) {
            const QString background = stem + QLatin1String("BackgroundBrush") + suffix;
            return contrast(brushes.value(stem + foregroundBrush + suffix).color(),
                            painted(brushes.value(background).color(), window));
        };
        for (const QString &stem : brushStems()) {
            const double enabled = ratio(stem, QString());
            const double disabled = ratio(stem, disabledSuffix);
            QVERIFY2(enabled >= textContrast, qPrintable(stem));
            QVERIFY2(disabled >= disabledTextContrast, qPrintable(stem));
            QVERIFY2(disabled < enabled, qPrintable(stem));
        }
    }

    /// Icons learn from a brush's name whether they are to look disabled, and several brushes
    /// share one colour.
    void tintsTellEnabledFromDisabled_data() { addThemeRows(); }
    void tintsTellEnabledFromDisabled()
    {
        QFETCH(QString, theme);
        apply(theme);
        const ThemeConfigurationReader configuration = readConfiguration(theme);
        const QMap<QString, QBrush> &brushes = configuration.getBrushesMap();
        for (const QString &stem : brushStems()) {
            const QString name = stem + foregroundBrush;
            const QString enabled = ThemeResources::getBrushKey(brushes.value(name));
            QVERIFY2(!enabled.contains(disabledSuffix), qPrintable(name));
            const QString disabled =
                ThemeResources::getBrushKey(brushes.value(name + disabledSuffix));
            QVERIFY2(disabled.contains(disabledSuffix), qPrintable(name));
        }
    }

    void haveTheIconsOfTheStyle_data() { addThemeRows(); }
    void haveTheIconsOfTheStyle()
    {
        QFETCH(QString, theme);
        apply(theme);
        for (const char *name :
             {"action.app.minimize", "action.app.maximize", "action.close", "action.delete",
              "arrow.up.small", "arrow.down.small", "arrow.left.small", "arrow.right.small",
              "chevron.up", "chevron.down", "chevron.left", "chevron.right", "view.calendar",
              "status.info.circular.colored", "status.warning.circular.colored",
              "status.danger.circular.colored", "status.help.circular.colored",
              "status.checked.circular.colored"}) {
            const QIcon icon = QIcon::fromTheme(QLatin1String(name));
            QVERIFY2(!icon.pixmap(16).isNull(), name);
        }
    }
};

QTEST_MAIN(ShippedThemesTest)
#include "ShippedThemesTest.moc"
