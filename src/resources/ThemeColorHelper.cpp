#include "resources/ThemeColorHelper.h"

#include "common_utils/Helpers.h"
#include "common_utils/IconThemeState.h"
#include "resources/DisabledFactors.h"
#include "resources/ThemeResources.h"
#include "resources/kept/KeptValue.h"
#include "resources/kept/SlotCache.h"
#include "resources/variables/PublishedVariables.h"

#include <utility>

namespace TARN {

namespace {

/// The colour that the icon set draws its foreground in.
QBrush referenceForeground()
{
    return QColor(0xe5, 0xee, 0xf4);
}

/// An icon that is to be painted with a brush.
struct Tint
{
    QIcon icon;
    QBrush brush;

    bool operator==(const Tint &other) const
    {
        return icon.cacheKey() == other.icon.cacheKey() && brush == other.brush;
    }
    std::size_t hash() const
    {
        // The key of an icon counts in its upper half.
        const auto key = quint64(icon.cacheKey());
        return mixedHash({key, key >> 32U, brush.color().rgba()});
    }
};

/// What a tinted icon depends on besides: the icon theme, and the names of the published brushes.
struct TintCircumstances
{
    IconThemeState iconTheme;
    QVariantMap variables;

    static TintCircumstances current()
    {
        return {IconThemeState::current(),
                publishedVariables(ThemeResources::getThemeVariablePropertyName())};
    }
    bool operator==(const TintCircumstances &other) const
    {
        return iconTheme == other.iconTheme && variables.isSharedWith(other.variables);
    }
};

QIcon tintedIcon(const Tint &tint)
{
    QString key = ThemeResources::getBrushKey(tint.brush);
    // Icon themes name the disabled variants of their icons the other way round.
    key.replace(QLatin1String("BrushDisabled"), QLatin1String("DisabledBrush"));
    QIcon themed = QIcon::fromTheme(tint.icon.name() + QLatin1Char('.') + key);
    if (!themed.isNull()) {
        return themed;
    }
    const bool disabled = key.contains(QLatin1String("Disabled"));
    return Helpers::getModifiedIconWithForegroundBrush(tint.icon, referenceForeground(), tint.brush,
                                                       disabled);
}

} // namespace

QColor ThemeColorHelper::disabled(const QColor &color, bool foreground)
{
    static ProcessCached<DisabledFactors> factors(
        [] { return DisabledFactors::from(ThemeResources::getDisabledFactor); });
    return disabledColor(color, foreground, factors.value());
}

QIcon ThemeColorHelper::getModifiedIconWithForegroundBrush(QIcon icon, QBrush brush)
{
    const Tint tint{std::move(icon), std::move(brush)};
    if (tint.icon.isNull() || tint.brush.style() != Qt::SolidPattern) {
        return tintedIcon(tint);
    }
    // Finding out whether the icon theme has one for a brush takes longer than painting it.
    static SlotCache<Tint, QIcon, 257, TintCircumstances> icons(tintedIcon);
    return icons.value(tint);
}

} // namespace TARN
