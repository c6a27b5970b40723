#pragma once

#include <QtCore/QtGlobal>

class QIODevice;

namespace TARN {

/// Returns how many pixels there are in the picture that \a device holds, in the largest of its
/// pictures where it is an icon file, without decoding it; 0 when that can't be told. \a device has
/// to be open for reading, at its beginning, and is left there.
qint64 rasterPixels(QIODevice &device);

} // namespace TARN
