#pragma once

#include "common_utils/Helpers.h"
#include "style/asking/Requests.h"

#include <QtCore/QRectF>
#include <QtGui/QBrush>
#include <QtGui/QIcon>
#include <QtGui/QPalette>
#include <QtGui/QPen>

class QFontMetrics;
class QPainter;
class QPixmap;
class QStyle;
class QWidget;

/// What the families draw with.
namespace TARN {

class BaseStyle;

/// The theme's corner radii.
enum class CornerSize { Small, Base, Medium, Large };

/// Returns the theme's radius, truncated to whole device-independent pixels.
int cornerRadius(CornerSize size);

/// Returns the rectangle along which an outline of one pixel runs just inside of \a rect.
QRectF onHalfPixel(const QRect &rect);

/// Returns the pen of outlines: one pixel wide, with mitred corners.
QPen outlinePen(const QBrush &brush);

/// Fills and strokes a rounded rectangle; \a radius 0 gives crisp corners without antialiasing.
/// Changes the pen, the brush and the antialiasing of \a painter.
void drawShape(QPainter &painter, const QRectF &rect, int radius, const QPen &pen,
               const QBrush &brush,
               Helpers::StraightCornerFlags straightCorners = Helpers::NoStraightCorner);

/// How wide straight lines are.
enum class Line {
    Pixel,    ///< one pixel, rounded down to whole pixels of the device
    Hairline, ///< one pixel of the device, however small it is
    Exact     ///< one pixel of any scale, so that lines beside each other leave no gap
};

/// \name Straight lines
/// They lie along the inside of \a rect on whole pixels of the device. Stroking them takes a
/// hundred times as long.
/// \{
void fillEdge(QPainter &painter, const QRect &rect, Qt::Edge edge, const QBrush &brush,
              Line line = Line::Pixel);
void fillFrame(QPainter &painter, const QRect &rect, const QBrush &brush, Line line = Line::Pixel);
/// \}

/// Returns the theme's icon \a name, a string literal, which is looked up once for the process.
const QIcon &keptIcon(const char *name);

/// Draws \a icon in the middle of \a rect, on whole device pixels.
void drawIcon(QPainter &painter, const QRect &rect, const QIcon &icon,
              QIcon::Mode mode = QIcon::Normal, QIcon::State state = QIcon::Off);

/// Draws \a icon as above, its foreground painted with \a brush.
void drawTintedIcon(QPainter &painter, const QRect &rect, const QIcon &icon, const QBrush &brush);

/// Returns the picture of \a icon at \a size for the screen of \a widget, which may be null.
QPixmap iconPixmap(const QIcon &icon, const QSize &size, QIcon::Mode mode, QIcon::State state,
                   const QWidget *widget);

/// Returns the size of \a pixmap in device-independent pixels.
QSize sizeOf(const QPixmap &pixmap);

/// Has the proxy of \a style draw \a pixmap in the middle of \a rect, on whole device pixels.
void drawItemPixmap(const QStyle &style, QPainter &painter, const QRect &rect,
                    const QPixmap &pixmap);

/// Returns \a palette with \a brush, unless it is none, as the \a role of its current colour group.
/// What was asked for lately is kept: setting a brush copies a palette.
QPalette paletteWith(const QPalette &palette, QPalette::ColorRole role, const QBrush &brush);

/// Returns \a text as far as there is room for it in \a width; \a flags are those of drawing it.
/// What was asked for lately is kept: measuring takes about as long as drawing.
QString elidedText(const QFontMetrics &metrics, const QString &text, Qt::TextElideMode mode,
                   int width, int flags = 0);

/// Returns how texts with mnemonics are to be drawn.
int mnemonicFlags(const BaseStyle &style, const PaintRequest &request);

/// Has the proxy of \a style mark \a rect as focused; whether that is seen is the primitive's
/// matter.
void drawFocusRect(const BaseStyle &style, const PaintRequest &request, const QRect &rect);

/// Sets \a brush, unless it is none, as the text of the button that \a option describes and tints
/// the option's icon with it. The option is a QStyleOptionButton or a QStyleOptionToolButton.
template <typename ButtonOption>
void useForeground(ButtonOption &option, const QBrush &brush);

} // namespace TARN
