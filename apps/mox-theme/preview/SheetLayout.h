#pragma once

#include <QtCore/QRect>
#include <QtCore/QVector>

namespace TARN::ThemeTool {

/// Arranges \a cells, whose sizes are what they need, in columns of the distance \a gap: in order
/// from top to bottom and from column to column. A column is as wide as the widest of its cells,
/// which are as wide as their column. There are as many columns as bring the whole closest to
/// \a aspect, its width in proportion to its height, and they are as even as the order allows.
///
/// Returns the rectangles of the cells, the first at 0,0.
QVector<QRect> arrangeInColumns(const QVector<QSize> &cells, int gap, double aspect);

} // namespace TARN::ThemeTool
