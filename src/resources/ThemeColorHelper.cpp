#include "resources/ThemeColorHelper.h"

#include "common_utils/Helpers.h"
#include "resources/ThemeResources.h"
#include "resources/kept/ProcessCache.h"
#include "resources/variables/VariablePath.h"

#include <array>

namespace TARN {

namespace {

/// Colours up to this perceived brightness are dark.
constexpr int brightestDarkColor = 130;

struct DisabledFactors
{
    int lightForeground;
    int lightBackground;
    int darkForeground;
    int darkBackground;
};

DisabledFactors readDisabledFactors()
{
    return {ThemeResources::getDisabledFactor(QStringLiteral("LightForegroundDisableFactor")),
            ThemeResources::getDisabledFactor(QStringLiteral("LightBackgroundDisableFactor")),
            ThemeResources::getDisabledFactor(QStringLiteral("DarkForegroundDisableFactor")),
            ThemeResources::getDisabledFactor(QStringLiteral("DarkBackgroundDisableFactor"))};
}

/// The colour that the icon set draws its foreground in.
QBrush referenceForeground()
{
    return QColor(0xe5, 0xee, 0xf4);
}

QIcon tintedIcon(const QIcon &icon, const QBrush &brush)
{
    QString key = ThemeResources::getBrushKey(brush);
    // Icon themes name the disabled variants of their icons the other way round.
    key.replace(QLatin1String("BrushDisabled"), QLatin1String("DisabledBrush"));
    QIcon themed = QIcon::fromTheme(icon.name() + QLatin1Char('.') + key);
    if (!themed.isNull()) {
        return themed;
    }
    const bool disabled = key.contains(QLatin1String("Disabled"));
    return Helpers::getModifiedIconWithForegroundBrush(icon, referenceForeground(), brush,
                                                       disabled);
}

/// The icons that were last tinted. Finding out whether the icon theme has one for a brush takes
/// longer than painting it.
class TintedIcons
{
public:
    static bool isKeepable(const QIcon &icon, const QBrush &brush)
    {
        return !icon.isNull() && brush.style() == Qt::SolidPattern;
    }

    QIcon icon(const QIcon &icon, const QBrush &brush)
    {
        dropOutdated();
        Entry &entry = m_entries.at(slotOf(icon.cacheKey(), brush));
        if (entry.source != icon.cacheKey() || entry.brush != brush) {
            entry = {icon.cacheKey(), brush, tintedIcon(icon, brush)};
        }
        return entry.tinted;
    }

private:
    struct Entry
    {
        qint64 source = 0;
        QBrush brush;
        QIcon tinted;
    };

    static constexpr std::size_t entryCount = 512;

    static std::size_t slotOf(qint64 source, const QBrush &brush)
    {
        // The key of an icon counts in its upper half.
        const auto number = quint64(source) + (quint64(source) >> 32U) * 31;
        return (number ^ quint64(brush.color().rgba()) * 17) % entryCount;
    }

    /// The result depends on the icon theme and on the names of the published brushes.
    void dropOutdated()
    {
        const QString themeName = QIcon::themeName();
        const QStringList searchPaths = QIcon::themeSearchPaths();
        const QVariantMap variables =
            publishedVariables(ThemeResources::getThemeVariablePropertyName());
        if (m_themeName == themeName && m_searchPaths.isSharedWith(searchPaths) &&
            m_variables.isSharedWith(variables)) {
            return;
        }
        m_entries.fill(Entry());
        m_themeName = themeName;
        m_searchPaths = searchPaths;
        m_variables = variables;
    }

    std::array<Entry, entryCount> m_entries;
    QString m_themeName;
    QStringList m_searchPaths;
    QVariantMap m_variables;
};

} // namespace

QColor ThemeColorHelper::disabled(const QColor &color, bool foreground)
{
    static ProcessCached<DisabledFactors> kept(readDisabledFactors);
    const DisabledFactors &factors = kept.value();
    if (Helpers::getPerceivedBrightness(color) > brightestDarkColor) {
        return color.darker(foreground ? factors.lightForeground : factors.lightBackground);
    }
    return color.lighter(foreground ? factors.darkForeground : factors.darkBackground);
}

QIcon ThemeColorHelper::getModifiedIconWithForegroundBrush(QIcon icon, QBrush brush)
{
    static ProcessCached<TintedIcons> kept([] { return TintedIcons(); });
    return TintedIcons::isKeepable(icon, brush) ? kept.value().icon(icon, brush)
                                                : tintedIcon(icon, brush);
}

} // namespace TARN
