#include "ImageFiles.h"

#include <QtCore/QBuffer>
#include <QtCore/QDataStream>
#include <QtGui/QImage>

namespace {

constexpr int cursorSide = 32;

} // namespace

QByteArray svgFile(const QByteArray &color, const QSize &size)
{
    return R"(<svg xmlns="http://www.w3.org/2000/svg" width=")" + QByteArray::number(size.width()) +
           R"(" height=")" + QByteArray::number(size.height()) +
           R"("><rect width="100000" height="100000" fill=")" + color + R"("/></svg>)";
}

QByteArray rasterFile(const QColor &color, const char *format, const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!image.save(&buffer, format)) {
        qFatal("The test can't write the image format %s", format);
    }
    return bytes;
}

QByteArray CursorFile::toBytes() const
{
    constexpr quint32 headerSize = 40;
    constexpr quint32 maskSize = cursorSide * cursorSide / 8;
    constexpr quint32 imageSize = headerSize + cursorSide * cursorSide * 4 + maskSize;

    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream << quint16(0) << type << count;
    stream << declaredWidth << declaredHeight << quint8(0) << quint8(0) << hotspotX << hotspotY
           << imageSize << imageOffset;
    stream << headerSize << bitmapWidth << bitmapHeight << quint16(1) << bitsPerPixel << quint32(0)
           << quint32(0) << qint32(0) << qint32(0) << colorsUsed << quint32(0);
    for (int pixel = 0; pixel < cursorSide * cursorSide; ++pixel) {
        stream << quint32(color.rgba());
    }
    return bytes + QByteArray(maskSize, '\0');
}
