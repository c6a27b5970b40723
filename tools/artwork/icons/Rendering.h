#pragma once

#include <QtCore/QByteArray>
#include <QtGui/QImage>

namespace TARN::Artwork {

/// Returns the SVG file \a svg at \a side by \a side pixels, as
/// QImage::Format_ARGB32_Premultiplied.
QImage rendered(QByteArray svg, int side);

} // namespace TARN::Artwork
