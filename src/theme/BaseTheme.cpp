#include "theme/BaseTheme.h"

#include "readers/QPaletteReader.h"
#include "readers/ThemeConfigurationReader.h"
#include "readers/xml/XmlFile.h"
#include "resources/ThemeResources.h"
#include "resources/files/CheckedFolder.h"
#include "resources/variables/VariantMap.h"
#include "style/families/tabs/TabSizes.h"
#include "theme/ApplicationLook.h"
#include "theme/CleanSwitch.h"
#include "theme/StyleInstallation.h"
#include "theme/ThemeFootprint.h"

#include <QtCore/QDebug>
#include <QtWidgets/QApplication>

namespace TARN {

namespace {

void publishVariables(QApplication &app, const ThemeConfigurationReader &configuration)
{
    const QVariantMap variables{
        {ThemeResources::getColorsVarPrefix(), fillQVariantMap(configuration.getColorsMap())},
        {ThemeResources::getInternalColorsVarPrefix(),
         fillQVariantMap(configuration.getInternalColorsMap())},
        {ThemeResources::getBrushesVarPrefix(), fillQVariantMap(configuration.getBrushesMap())},
        {ThemeResources::getInternalBrushesVarPrefix(),
         fillQVariantMap(configuration.getInternalBrushesMap())},
        {ThemeResources::getOpacitiesVarPrefix(), fillQVariantMap(configuration.getOpacitiesMap())},
        {ThemeResources::getCornerRadiusVarPrefix(),
         fillQVariantMap(configuration.getCornerRadiusMap())},
        {ThemeResources::getFontsVarPrefix(), configuration.getFont().toVariantMap()},
    };
    app.setProperty(ThemeResources::getThemeVariablePropertyName(), variables);
}

void addImages(QApplication &app, const QString &directory, const QString &name)
{
    ThemeFootprint &footprint = ThemeFootprint::of(app);
    const QString imageThemes = footprint.addImages(directory + QLatin1String("/Images/"), name);
    const QString images = imageThemes + name;
    const QString icons = images + QLatin1String("/scalable");
    footprint.addIconThemes(imageThemes);
    // The toolkit would follow such a name out of all folders of icon themes.
    if (!leadsOutside(name)) {
        ApplicationLook::of(app).setIconTheme(name);
    }
    footprint.addResourceFiles(icons, name);
    footprint.addSearchPath(ThemeResources::iconsPrefix(), icons);
    footprint.addSearchPath(ThemeResources::iconsPrefix(), QStringLiteral(":/Icons"));
    // Spelled like this the fallback is not the compiled-in icon set; a theme's own resource file
    // may provide it.
    footprint.addFallbackIcons(QStringLiteral(":/icons"));
    footprint.addSearchPath(ThemeResources::cursorsPrefix(), images + QLatin1String("/Cursors"));
    footprint.addSearchPath(ThemeResources::cursorsPrefix(), QStringLiteral(":/Cursors"));
    footprint.addSearchPath(ThemeResources::themeResourcesPrefix(),
                            images + QLatin1String("/theme_resources"));
}

} // namespace

BaseTheme::BaseTheme(const QString &directory)
    : m_directory(directory)
    , m_settings(directory + QLatin1String("/theme.xml"))
{
}

QString BaseTheme::getName() const
{
    return m_settings.getName();
}

void BaseTheme::customize(QApplication *app)
{
    if (!app) {
        return;
    }
    if (m_settings.getStatus() != ReadFine) {
        qDebug() << "Error reading theme configuration file "
                 << m_directory + QLatin1String("/theme.xml");
        return;
    }

    ThemeFootprint &footprint = ThemeFootprint::of(*app);
    CleanSwitch cleanSwitch(*app, footprint);
    ApplicationLook &look = ApplicationLook::of(*app);
    const bool hasNativeStyle = qEnvironmentVariableIsSet("TARN_USE_NATIVE_STYLE");
    const Mode mode = hasNativeStyle ? Mode::Default : wantedMode(*app);
    look.begin(mode);

    cleanSwitch.addFonts(m_directory + QLatin1String("/Fonts"));

    cleanSwitch.forgetFactors();
    const ThemeConfigurationReader configuration(m_directory + QLatin1String("/config.xml"),
                                                 cleanSwitch.baseFont());
    if (configuration.getStatus() != ReadFine) {
        // Theme authors know this message by the name it gives.
        qDebug() << "Error reading theme palette file: "
                 << m_directory + QLatin1String("/palette.xml");
    }
    const QString mappingPath = m_directory + QLatin1String("/qpaletteMapping.xml");
    const QPaletteReader mapping(mappingPath, configuration.getBrushesMap(),
                                 configuration.getColorsMap(), cleanSwitch.basePalette());

    publishVariables(*app, configuration);
    if (cleanSwitch.isActive()) {
        // Widgets that fetch icons from a new style are to get the theme's.
        cleanSwitch.takeBackImages();
        addImages(*app, m_directory, getName());
    }
    cleanSwitch.forgetLookUps();

    const QFont font = configuration.getFont().getFont(ThemeFont::Base);
    if (!hasNativeStyle) {
        if (mapping.getStatus() != ReadFine) {
            qDebug() << "Error reading theme QPalette mapping file: " << mappingPath;
        }
        cleanSwitch.removeStyleSheet();
        if (mode == Mode::Complete) {
            // Widgets with a stylesheet of their own take the font when the style changes.
            look.setFont(font);
        }
        installStyle(*app, mapping.deserialize());
        if (mode == Mode::Default) {
            cleanSwitch.spreadFont(font);
            installStyleSheet(*app);
        }
    }
    if (mode == Mode::Default) {
        look.setFont(font);
    }

    if (!cleanSwitch.isActive()) {
        addImages(*app, m_directory, getName());
    }
    cleanSwitch.repeatChoices();
    look.setTabFont(Tabs::applicationFont());
    cleanSwitch.finish();
}

} // namespace TARN
