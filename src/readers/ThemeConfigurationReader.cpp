#include "readers/ThemeConfigurationReader.h"

#include "readers/ConfigurationTags.h"
#include "readers/LinearGradientBrushReader.h"
#include "readers/SolidBrushReader.h"
#include "readers/ThemeConfiguration.h"
#include "resources/ThemeColorHelper.h"
#include "resources/ThemeResources.h"
#include "resources/variables/VariantMap.h"

#include <QtCore/QCoreApplication>

#include <utility>

namespace TARN {

namespace {

void publishDisabledFactors(const QMap<QString, int> &factors)
{
    QCoreApplication *app = QCoreApplication::instance();
    if (!app) {
        return;
    }
    const QVariantMap variables{
        {ThemeResources::getDisabledFactorsVarPrefix(), fillQVariantMap(factors)}};
    app->setProperty(ThemeResources::getInternalThemeVariablePropertyName(), variables);
}

/// The disabled colours of a file are derived by the factors in force, which those of the first
/// file stay: they are kept as soon as a colour is disabled.
DisableColor publishAndDisable(const QMap<QString, int> &factors)
{
    publishDisabledFactors(factors);
    return ThemeColorHelper::disabled;
}

} // namespace

// The readers live as long as the process; there is nothing to gain from deleting them at its end.
QMap<QString, BrushReader *> ThemeConfigurationReader::s_brushReaders{
    {SolidBrushTag, new SolidBrushReader},
    {LinearGradientBrushTag, new LinearGradientBrushReader},
};

ThemeConfigurationReader::ThemeConfigurationReader(const QString &path)
    : ThemeConfigurationReader(path, QFont())
{
}

ThemeConfigurationReader::ThemeConfigurationReader(const QString &path, const QFont &defaultFont)
{
    ThemeConfiguration configuration = readConfiguration(path, publishAndDisable, defaultFont);
    m_status = configuration.status;
    m_colors = std::move(configuration.colors);
    m_internalColors = std::move(configuration.internalColors);
    m_brushes = std::move(configuration.brushes);
    m_internalBrushes = std::move(configuration.internalBrushes);
    m_opacities = std::move(configuration.opacities);
    m_cornerRadii = std::move(configuration.cornerRadii);
    m_disabledFactors = std::move(configuration.disabledFactors);
    m_font = std::move(configuration.font);
}

int ThemeConfigurationReader::getStatus() const
{
    return m_status;
}

const QMap<QString, QColor> &ThemeConfigurationReader::getColorsMap() const
{
    return m_colors;
}

const QMap<QString, QColor> &ThemeConfigurationReader::getInternalColorsMap() const
{
    return m_internalColors;
}

const QMap<QString, QBrush> &ThemeConfigurationReader::getBrushesMap() const
{
    return m_brushes;
}

const QMap<QString, QBrush> &ThemeConfigurationReader::getInternalBrushesMap() const
{
    return m_internalBrushes;
}

const QMap<QString, double> &ThemeConfigurationReader::getOpacitiesMap() const
{
    return m_opacities;
}

const QMap<QString, int> &ThemeConfigurationReader::getCornerRadiusMap() const
{
    return m_cornerRadii;
}

const QMap<QString, int> &ThemeConfigurationReader::getDisabledFactorsMap() const
{
    return m_disabledFactors;
}

ThemeFont ThemeConfigurationReader::getFont() const
{
    return m_font;
}

} // namespace TARN
