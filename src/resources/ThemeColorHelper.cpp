#include "resources/ThemeColorHelper.h"

#include "common_utils/Helpers.h"
#include "resources/ProcessCache.h"
#include "resources/ThemeResources.h"

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

} // namespace TARN
