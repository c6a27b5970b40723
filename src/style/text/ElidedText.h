#pragma once

#include <QtCore/QString>

class QFontMetrics;

namespace TARN {

/// Returns \a text as far as there is room for it in \a width; \a flags are those of drawing it.
/// What was asked for lately is kept: measuring takes about as long as drawing.
QString elidedText(const QFontMetrics &metrics, const QString &text, Qt::TextElideMode mode,
                   int width, int flags = 0);

} // namespace TARN
