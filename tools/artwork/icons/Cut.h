#pragma once

#include <QtGui/QPainterPath>

namespace TARN::Artwork {

/// Returns the parts of the \a line that are outside of \a region. Curves stay curves.
QPainterPath cutLine(const QPainterPath &line, const QPainterPath &region);

} // namespace TARN::Artwork
