#pragma once

#include "icons/Drawing.h"

#include <QtCore/QStringList>

namespace TARN::Artwork {

/// Reads the drawings of one source. What can't be understood is told in \a errors, one line for
/// each.
///
/// A drawing is a line "name: layer; layer; ...", which may go on in indented lines; "#" starts a
/// comment line. A layer is
/// - a shape, "paint [colour] geometry", with paint one of line, solid, soft, clear, groove and
///   geometry one of path data, "circle x y radius", "ellipse x y radiusX radiusY",
///   "rect x y width height [corner radius]", or
/// - the name of another drawing, followed by what is done to it, in that order: "moved x y",
///   "turned degrees" (about the middle of the grid, clockwise), "mirrored" (left to right),
///   "flipped" (top to bottom), "scaled factor" (about the middle; also scales the lines).
QVector<Drawing> parseDrawings(const QString &text, const QString &fileName, QStringList *errors);

} // namespace TARN::Artwork
