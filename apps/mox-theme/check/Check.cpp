#include "check/Check.h"

#include "check/rules/ConfigurationRules.h"
#include "check/rules/ContrastRules.h"
#include "check/rules/ImageRules.h"
#include "check/rules/NameRules.h"
#include "check/rules/PaletteRules.h"
#include "check/rules/StyleSheetRules.h"
#include "text/Literals.h"

#include <resources/ThemeResources.h>

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

#include <algorithm>

namespace TARN::ThemeTool {

namespace {

const QString descriptionFile = QStringLiteral("theme.xml");
const QString configurationFile = QStringLiteral("config.xml");
const QString paletteFile = QStringLiteral("qpaletteMapping.xml");

/// Adds what the palette refers to: a brush, else a colour, as the library looks names up.
void addReferences(const QVector<MappingEntry> &palette, const Configuration &configuration,
                   QSet<QString> &referred)
{
    const QString brushes = ThemeResources::getBrushesVarPrefix();
    for (const MappingEntry &entry : palette) {
        const QString name = entry.reference();
        const QString group =
            configuration.knows(brushes, name) ? brushes : ThemeResources::getColorsVarPrefix();
        referred.insert(variablePath(group, name));
        referred.insert(variablePath(group, withoutDerivedPrefix(name)));
    }
}

/// Checks what takes the theme as a whole: names, placeholders and contrasts.
void checkValues(const QString &directory, const Configuration &configuration,
                 const QVector<MappingEntry> &palette, bool all, FindingList &findings)
{
    QSet<QString> referred = checkStyleSheets(directory, configuration, findings);
    addReferences(palette, configuration, referred);
    for (const QString &color : configuration.colorsOfBrushes) {
        referred.insert(variablePath(ThemeResources::getColorsVarPrefix(), color));
    }
    const bool wantsMissing = findings.wants("missing-variable"_s);
    const bool wantsUnused = findings.wants("unused-entry"_s);
    const bool wantsContrast = findings.wants("low-contrast"_s);
    if (!wantsMissing && !wantsUnused && !wantsContrast) {
        return;
    }
    const Demand demand(configuration);
    if (wantsMissing) {
        reportMissing(configuration, demand, all, findings);
    }
    if (wantsUnused) {
        reportUnused(configuration, demand, referred, findings);
    }
    if (wantsContrast) {
        checkContrast(configuration, demand, palette, findings);
    }
}

} // namespace

QVector<Finding> checkTheme(const QString &directory, const CheckSettings &settings)
{
    const QDir folder(directory);
    QStringList paths;
    for (const QString &file : {descriptionFile, configurationFile, paletteFile}) {
        paths.append(folder.filePath(file));
    }
    FindingList findings(settings);
    const Description description = checkDescription(ThemeFile(paths.at(0)), findings);
    const Configuration configuration = checkConfiguration(ThemeFile(paths.at(1)), findings);
    const QVector<MappingEntry> palette =
        checkPalette(ThemeFile(paths.at(2)), configuration, findings);
    if (configuration.wasRead) {
        checkValues(directory, configuration, palette, settings.all, findings);
    }
    checkFontFiles(directory, findings);
    checkImages(directory, description, findings);
    return findings.sorted(paths);
}

QString unreadableTheme(const QString &directory)
{
    const QFileInfo info(directory);
    if (!info.isDir()) {
        return directory + (info.exists() ? ": not a folder"_s : ": no such folder"_s);
    }
    const QDir folder(directory);
    const QStringList parts{descriptionFile, configurationFile, paletteFile, "Images"_s, "Fonts"_s};
    const bool isTheme = std::any_of(parts.cbegin(), parts.cend(), [&folder](const QString &part) {
        return folder.exists(part);
    });
    return isTheme ? QString() : directory + ": holds nothing of a theme"_s;
}

} // namespace TARN::ThemeTool
