#pragma once

#include <QtGui/QBrush>
#include <QtGui/QPalette>

/// Palettes for the drawing of one element.
namespace TARN {

/// Returns \a palette with \a brush, unless it is none, as the \a role of its current colour group.
/// What was asked for lately is kept: setting a brush copies a palette.
QPalette paletteWith(const QPalette &palette, QPalette::ColorRole role, const QBrush &brush);

/// Returns the brush of light outlines in \a palette. The reference lives as long as \a palette.
const QBrush &lightOutlineBrush(const QPalette &palette);

/// Returns \a palette with lighter light and darker dark edges.
QPalette shadeBorderPalette(const QPalette &palette);

/// Returns \a palette with lighter light, darker middle and lighter dark edges.
QPalette windowBorderPalette(const QPalette &palette);

} // namespace TARN
