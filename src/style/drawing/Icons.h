#pragma once

#include <QtCore/QRect>
#include <QtGui/QBrush>
#include <QtGui/QIcon>

class QPainter;
class QPixmap;
class QStyle;
class QWidget;

/// Icons and pictures of them, on whole pixels of the device.
namespace TARN {

/// Returns the theme's icon \a name, a string literal, which is looked up once for the process.
const QIcon &keptIcon(const char *name);

/// Draws \a icon in the middle of \a rect, on whole device pixels.
void drawIcon(QPainter &painter, const QRect &rect, const QIcon &icon,
              QIcon::Mode mode = QIcon::Normal, QIcon::State state = QIcon::Off);

/// Draws \a icon as above, its foreground painted with \a brush.
void drawTintedIcon(QPainter &painter, const QRect &rect, const QIcon &icon, const QBrush &brush);

/// Draws the theme's icon \a name, a string literal, as above in the square \a rect. It is copied
/// from a picture that is kept: for what is drawn so often that its look-up counts.
void drawKeptIcon(QPainter &painter, const QRect &rect, const char *name, const QBrush &brush);

/// Returns \a icon painted with \a brush, be it drawn for dark grounds, as the library's icons are,
/// or for light ones, as those are that light themes bring.
QIcon iconInBrush(const QIcon &icon, const QBrush &brush);

/// Returns the picture of \a icon at \a size for the screen of \a widget, which may be null.
QPixmap iconPixmap(const QIcon &icon, const QSize &size, QIcon::Mode mode, QIcon::State state,
                   const QWidget *widget);

/// Returns the size of \a pixmap in device-independent pixels.
QSize sizeOf(const QPixmap &pixmap);

/// Has \a proxy draw \a pixmap in the middle of \a rect, on whole device pixels.
void drawItemPixmap(const QStyle &proxy, QPainter &painter, const QRect &rect,
                    const QPixmap &pixmap);

} // namespace TARN
