#pragma once

#include <QtCore/QSize>
#include <QtGui/QPixmap>

namespace TARN::Gallery {

/// Returns a picture of stained cells under a microscope, \a size in device-independent pixels.
/// The same \a seed always gives the same picture.
QPixmap micrograph(const QSize &size, quint32 seed);

/// Returns a square swatch of \a color, \a extent device-independent pixels wide.
QPixmap swatch(const QColor &color, int extent);

} // namespace TARN::Gallery
