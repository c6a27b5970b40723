#pragma once

#include <mox_common_utils_export.h>

#include <QtCore/QFlags>
#include <QtCore/QRectF>
#include <QtGui/QBrush>
#include <QtGui/QColor>
#include <QtGui/QIcon>

class QPainter;

/// Painting helpers that the theme's style and applications share.
///
/// All of them are to be called on the GUI thread. Lengths are device-independent pixels.
namespace TARN::Helpers {

/// Names the corners of a rectangle that drawRoundedRectShape() leaves square.
enum StraightCornerFlag {
    StraightTopLeft = 1,
    StraightTopRight = 2,
    StraightBottomRight = 4,
    StraightBottomLeft = 8,
    /// Asks for no straight corner; it adds nothing to the other flags.
    NoStraightCorner = 16
};
Q_DECLARE_FLAGS(StraightCornerFlags, StraightCornerFlag)
Q_DECLARE_OPERATORS_FOR_FLAGS(StraightCornerFlags)

/// Fills and strokes a rounded rectangle with the brush and the pen of \a painter.
///
/// The outline runs along the edges of \a rect itself: a caller that wants a crisp one-pixel line
/// passes a rectangle on the half pixel. The corners named in \a straightCorners are square, the
/// others are quarter circles of \a radius. A radius larger than half the shorter side is
/// clamped to that half; a radius of 0 or less gives the exact rectangle. Antialiasing is the
/// painter's own setting. The painter's state is left as it was found; a null painter or a
/// rectangle that is empty or not finite draws nothing.
MOX_COMMON_UTILS_EXPORT void drawRoundedRectShape(const QRectF &rect, int radius,
                                                  QFlags<StraightCornerFlag> straightCorners,
                                                  QPainter *painter);

/// Marks the input that occupies \a rect as being in an error state.
///
/// The mark is a small disc in \a color with an upright exclamation mark in white, or in black
/// where white would not stand out from \a color. It is centred on the height of the rectangle at
/// its trailing edge, which is the left one when the painter's layout direction is right to left,
/// and stays inside the rectangle. It grows with the rectangle up to a diameter of 14; \a radius is
/// the corner radius of the input's frame, which the mark keeps clear of. Unless the painter is
/// rotated or sheared, the mark is aligned to the pixels of its device.
///
/// An invalid colour, a null painter, a rectangle that is not finite or reaches a million away, or
/// one too small to hold a legible mark (of a diameter of 7) draws nothing. The painter's state is
/// left as it was found.
MOX_COMMON_UTILS_EXPORT void drawInputStatusIndicator(const QRectF &rect, int radius,
                                                      const QColor &color, QPainter *painter);

/// Returns how bright \a color looks, from 0 for black to 255 for white.
///
/// The result never falls when a channel of the colour rises, and does not depend on its alpha;
/// that of a grey is its own value. Colours of more than 130 are the light ones. An invalid colour
/// counts as black.
MOX_COMMON_UTILS_EXPORT int getPerceivedBrightness(const QColor &color);

/// Returns a copy of \a icon in which what is painted in the colour of \a from is painted with
/// \a to instead.
///
/// The result renders \a icon at exactly the size and device pixel ratio that it is asked for and
/// replaces the pixels of the colour of \a from by \a to, in proportion to how much of that
/// colour a pixel holds, so that antialiased edges stay smooth and transparent parts stay
/// transparent. All other colours stay as they are. The alpha of \a from is ignored. \a to may be
/// a solid brush, a texture or a gradient; a gradient in object coordinates spans the icon,
/// logical coordinates start at its top left corner.
///
/// The icon keeps its name, its sizes, its modes and its states. A picture that \a icon has for a
/// mode is tinted; where it has none, the application's style gives the tinted normal picture the
/// look of the mode. When \a disabled is true, \a to is already the brush of a disabled icon, and
/// the style's disabled look is not applied on top of it. Streamed, the icon becomes one of plain
/// pictures.
///
/// What was rendered is kept, within a limit for all icons together, until the application's style
/// or icon theme changes: painting it again at the same size draws a pixmap. An icon whose engine
/// is not one of Qt's may show something else by now: it is asked for its picture each time, which
/// is tinted again when it has changed. Asking for the same tint of the same icon again gives the
/// same icon. An icon never renders more than 4096 pixels a side. A null \a icon gives a null icon;
/// a \a to without a brush (Qt::NoBrush), or a \a from that is not one colour (no brush, a gradient
/// or a texture), gives \a icon unchanged.
MOX_COMMON_UTILS_EXPORT QIcon getModifiedIconWithForegroundBrush(QIcon icon, QBrush from, QBrush to,
                                                                 bool disabled);

} // namespace TARN::Helpers
