#pragma once

#include <QtCore/QString>
#include <QtGui/QBrush>
#include <QtGui/QColor>

namespace TARN::ThemeTool {

/// How much of a difference between two colours is seen. The thresholds are of colorDistance().
enum class Visibility {
    Invisible, ///< below 0.02, where a difference is just noticed side by side
    Slight,    ///< below 0.05: noticed by who compares
    Clear,     ///< below 0.15: noticed at once, still the same kind of colour
    Strong     ///< another colour
};

Visibility visibility(double distance);

/// Returns the word for \a visibility: "invisible", "slight", "clear" or "strong".
QString word(Visibility visibility);

/// Returns how far two colours look apart. Translucent ones are laid over black and over white, and
/// the ground counts on which more is seen.
double visibleDistance(const QColor &first, const QColor &second);

/// Returns how far two brushes look apart, which are plain or linear gradients over the box that
/// they fill, where in the box they do most.
double visibleDistance(const QBrush &first, const QBrush &second);

} // namespace TARN::ThemeTool
