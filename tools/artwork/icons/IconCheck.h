#pragma once

#include "icons/Palette.h"

#include <QtCore/QByteArray>
#include <QtCore/QMap>
#include <QtCore/QStringList>

namespace TARN::Artwork {

/// The families, which the first word of an icon's name has to be of.
const QStringList &iconFamilies();

/// Returns what \a files, SVG files by icon name, do wrong: a line for each finding. Looked at
/// are the names, the colours, the elements, how much of the grid is covered at 16 and at 32
/// pixels, whether its edge is touched, and whether two icons look alike.
QStringList checkIcons(const QMap<QString, QByteArray> &files, const Palette &palette);

/// Returns by how much the two least different icons differ, and the likes of them: lines
/// "difference name name" for all pairs that differ in less than \a limit of the covered
/// pixels, in ascending order.
QStringList similarIcons(const QMap<QString, QByteArray> &files, double limit);

} // namespace TARN::Artwork
