#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QMap>
#include <QtGui/QColor>
#include <QtGui/QImage>

namespace TARN::Artwork {

/// How a contact sheet shows its icons.
struct SheetLook
{
    QColor background;
    QColor ink; ///< what the light foreground of the icons is shown in
    int columns = 12;
    bool large = false; ///< each icon also at 64 pixels, and the small one enlarged four times
};

/// Returns a picture of all \a icons (SVG files by name), in the order of the map, with their
/// names.
QImage contactSheet(const QMap<QString, QByteArray> &icons, const SheetLook &look);

} // namespace TARN::Artwork
