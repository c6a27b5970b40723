#pragma once

#include <QtCore/QString>
#include <QtGui/QPainterPath>

namespace TARN::Artwork {

/// Returns the outline of an SVG \a element, as the toolkit's SVG renderer reads it; empty when
/// it can't be read.
QPainterPath pathOf(const QString &element);

/// Returns \a path as SVG path data, in hundredths of a unit.
QString pathData(const QPainterPath &path);

/// Returns \a value in hundredths, as short as it can be written ("-.5").
QString shortNumber(double value);

} // namespace TARN::Artwork
