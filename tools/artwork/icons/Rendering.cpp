#include "icons/Rendering.h"

#include <QtCore/QBuffer>
#include <QtGui/QImageReader>

namespace TARN::Artwork {

QImage rendered(QByteArray svg, int side)
{
    QBuffer buffer(&svg);
    QImageReader reader(&buffer, "svg");
    reader.setScaledSize(QSize(side, side));
    return reader.read().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

} // namespace TARN::Artwork
