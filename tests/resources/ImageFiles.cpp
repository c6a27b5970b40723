#include "ImageFiles.h"

#include <QtCore/QBuffer>
#include <QtCore/QDataStream>
#include <QtGui/QImage>

#include <zlib.h>

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

QByteArray largePng(const QSize &size)
{
    QImage image(size, QImage::Format_Mono);
    image.fill(0);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, "PNG");
    return bytes;
}

QByteArray iconFile(const QByteArrayList &pictures)
{
    constexpr quint16 iconType = 1;
    constexpr quint8 side = 16;
    quint32 offset = 6 + 16 * quint32(pictures.size());
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream << quint16(0) << iconType << quint16(pictures.size());
    for (const QByteArray &picture : pictures) {
        stream << side << side << quint8(0) << quint8(0) << quint16(1) << quint16(32)
               << quint32(picture.size()) << offset;
        offset += quint32(picture.size());
    }
    return bytes + pictures.join();
}

QByteArray gzipped(const QByteArray &content)
{
    constexpr int gzipFormat = 16;
    constexpr int memoryLevel = 8;
    z_stream stream{};
    deflateInit2(&stream, Z_BEST_COMPRESSION, Z_DEFLATED, MAX_WBITS + gzipFormat, memoryLevel,
                 Z_DEFAULT_STRATEGY);
    QByteArray compressed(int(deflateBound(&stream, uLong(content.size()))), Qt::Uninitialized);
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(content.constData()));
    stream.avail_in = uInt(content.size());
    stream.next_out = reinterpret_cast<Bytef *>(compressed.data());
    stream.avail_out = uInt(compressed.size());
    deflate(&stream, Z_FINISH);
    compressed.resize(int(stream.total_out));
    deflateEnd(&stream);
    return compressed;
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
