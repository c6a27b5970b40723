#pragma once

#include <QtCore/QString>

class QPainter;
class QPen;
class QRect;

namespace TARN {

/// Draws a line of text exactly as QPainter::drawText() does, and tells whether it could. It leaves
/// to the painter what is not a plain line: breaks, tabs, wrapping, variants of different lengths.
///
/// The glyphs of texts are kept from one painting to the next, since finding them takes several
/// times longer than drawing them; those of the texts that were not drawn for the longest time are
/// dropped first.
bool drawSingleLine(QPainter &painter, const QRect &rect, int flags, const QString &text);

/// The same with \a pen instead of the painter's, which the painter keeps.
bool drawSingleLine(QPainter &painter, const QRect &rect, int flags, const QString &text,
                    const QPen &pen);

} // namespace TARN
