#pragma once

#include <QtCore/QPoint>
#include <QtCore/QStringList>
#include <QtGui/QImage>

#include <optional>

namespace TARN::Artwork {

/// The width and height of a cursor, in pixels.
constexpr int CursorExtent = 32;

/// A mouse cursor: a picture and the pixel of it that points.
struct CursorPicture
{
    QImage image; ///< CursorExtent wide and high, QImage::Format_ARGB32_Premultiplied
    QPoint hotspot;
};

/// Reads the drawing of a cursor: an SVG file with an unpainted element "hotspot", the centre of
/// which lies in the pixel that points. What is wrong with it is told in \a errors.
std::optional<CursorPicture> readCursorSource(const QString &path, QStringList *errors);

} // namespace TARN::Artwork
