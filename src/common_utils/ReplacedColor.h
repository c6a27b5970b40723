#pragma once

#include <QtGui/QBrush>
#include <QtGui/QImage>

/// Replacing one colour of a picture.
///
/// Pictures may have any format and are treated as what their pixels are: their device pixel
/// ratio is ignored.
namespace TARN::ReplacedColor {

/// Returns a picture of \a size pixels that \a brush fills.
///
/// A gradient in object coordinates spans the picture; logical coordinates are device-independent
/// pixels, of which each is \a scale pixels of the picture.
QImage filledPicture(const QBrush &brush, const QSize &size, qreal scale);

/// Returns \a picture with the pixels of the colour \a from replaced by those that \a replacement
/// has in the same place; \a replacement has the size of \a picture.
///
/// Pixels that hold \a from in part, because it is transparent there or because antialiasing has
/// mixed it with a colour next to it, hold the replacement in the same part afterwards. All other
/// pixels are left as they are. The alpha of \a from is ignored.
QImage replacedColor(const QImage &picture, QRgb from, const QImage &replacement);

} // namespace TARN::ReplacedColor
