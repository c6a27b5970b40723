#pragma once

#include <QtCore/QString>
#include <QtGui/QColor>

namespace TARN {

/// By how many percent a theme's colours become lighter or darker when they are disabled, as
/// QColor::lighter() and QColor::darker() take them.
struct DisabledFactors
{
    int lightForeground;
    int lightBackground;
    int darkForeground;
    int darkBackground;

    /// Returns what \a factor gives for the names of the factors.
    template <typename Factor>
    static DisabledFactors from(Factor factor)
    {
        return {factor(QStringLiteral("LightForegroundDisableFactor")),
                factor(QStringLiteral("LightBackgroundDisableFactor")),
                factor(QStringLiteral("DarkForegroundDisableFactor")),
                factor(QStringLiteral("DarkBackgroundDisableFactor"))};
    }
};

/// Returns the disabled variant of \a color by \a factors. ThemeColorHelper::disabled() is the same
/// by the factors in force.
QColor disabledColor(const QColor &color, bool foreground, const DisabledFactors &factors);

} // namespace TARN
