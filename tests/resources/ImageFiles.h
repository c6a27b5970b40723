#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayList>
#include <QtCore/QPoint>
#include <QtCore/QSize>
#include <QtGui/QColor>

/// Returns an SVG file of \a size that is filled with \a color, which SVG knows by its name.
QByteArray svgFile(const QByteArray &color, const QSize &size = QSize(16, 16));

/// Returns a file in the raster format \a format that is filled with \a color.
QByteArray rasterFile(const QColor &color, const char *format = "PNG",
                      const QSize &size = QSize(16, 16));

/// Returns a file in the PNG format that is black and takes few bytes, be \a size as large as it
/// is.
QByteArray largePng(const QSize &size);

/// Returns an icon file of the pictures \a pictures, whose sizes it tells wrongly.
QByteArray iconFile(const QByteArrayList &pictures);

/// Returns \a content as gzip compresses it.
QByteArray gzipped(const QByteArray &content);

/// A Windows cursor file of one image with 32 bits per pixel, filled with a colour. What the file
/// declares of the image can differ from the image that it holds.
struct CursorFile
{
    QColor color = Qt::red;
    quint16 type = 2;
    quint16 count = 1;
    quint8 declaredWidth = 32;
    quint8 declaredHeight = 32;
    quint16 hotspotX = 5;
    quint16 hotspotY = 9;
    quint32 imageOffset = 22;
    qint32 bitmapWidth = 32;
    qint32 bitmapHeight = 64; ///< of the colours and the mask together
    quint16 bitsPerPixel = 32;
    quint32 colorsUsed = 0;

    QByteArray toBytes() const;
};
