#pragma once

#include "color/Oklch.h"

#include <QtCore/QVector>

/// Colours that are legible by construction.
namespace TARN::ThemeTool {

/// A demand on a colour: a contrast ratio (1 to 21) against an opaque ground.
struct ContrastDemand
{
    QColor ground;
    double ratio = 1;
};

/// Where to look for a tone.
enum class ToneSide {
    Nearest, ///< on whichever side is nearer
    Lighter, ///< not darker than the wanted colour, unless no lighter one will do
    Darker   ///< not lighter than the wanted colour, unless no darker one will do
};

/// Tells whether \a color, opaque and in 8 bits a channel, meets every one of \a demands. An
/// invalid colour counts as black, here and below.
bool meets(const QColor &color, const QVector<ContrastDemand> &demands);

/// Returns the opaque colour of the hue of \a wanted that meets every one of \a demands and is
/// nearest to it in lightness; \a wanted itself, without its alpha, if that does. Its chroma is
/// kept as far as the screen shows it and the demands leave room for it. When no tone of that hue
/// meets them all, returns the one that comes nearest to meeting them, on whichever side.
QColor legibleTone(const QColor &wanted, const QVector<ContrastDemand> &demands,
                   ToneSide side = ToneSide::Nearest);

/// Returns \a above, of the given \a opacity (0 to 1) besides its own alpha, painted over the
/// opaque \a ground. Equals, bit for bit, what a QPainter of that opacity leaves in an image.
QColor mixed(const QColor &above, double opacity, const QColor &ground);

/// Returns \a color moved by \a steps hundredths of lightness; towards white when positive. Stays
/// within black and white.
QColor lightened(const QColor &color, double steps);

/// Returns \a color with its chroma multiplied by \a factor.
QColor saturated(const QColor &color, double factor);

} // namespace TARN::ThemeTool
