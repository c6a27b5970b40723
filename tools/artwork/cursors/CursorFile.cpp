#include "cursors/CursorFile.h"

#include <QtCore/QDataStream>
#include <QtCore/QDir>

namespace TARN::Artwork {

namespace {

constexpr quint16 CursorType = 2;
constexpr quint32 DirectorySize = 6 + 16; // the file's header and one entry
constexpr quint32 BitmapHeaderSize = 40;
constexpr quint32 PixelsSize = CursorExtent * CursorExtent * 4;
constexpr quint32 MaskSize = CursorExtent * CursorExtent / 8;
constexpr quint16 BitsPerPixel = 32;

void writeDirectory(QDataStream *stream, const QPoint &hotspot)
{
    *stream << quint16(0) << CursorType << quint16(1);
    *stream << quint8(CursorExtent) << quint8(CursorExtent) << quint8(0) << quint8(0)
            << quint16(hotspot.x()) << quint16(hotspot.y())
            << quint32(BitmapHeaderSize + PixelsSize + MaskSize) << DirectorySize;
}

void writeBitmapHeader(QDataStream *stream)
{
    // The height counts the rows of the pixels and those of the mask.
    *stream << BitmapHeaderSize << qint32(CursorExtent) << qint32(2 * CursorExtent) << quint16(1)
            << BitsPerPixel;
    const quint32 uncompressed = 0;
    *stream << uncompressed << quint32(PixelsSize + MaskSize);
    const qint32 pixelsPerMetre = 0;
    const quint32 colorCount = 0;
    *stream << pixelsPerMetre << pixelsPerMetre << colorCount << colorCount;
}

// Rows stand from the bottom upwards. What has no pixel is black, as readers that combine the
// screen with it by "exclusive or" need it.
void writePixels(QDataStream *stream, const QImage &image)
{
    for (int y = CursorExtent - 1; y >= 0; --y) {
        for (int x = 0; x < CursorExtent; ++x) {
            const QRgb premultiplied = image.pixel(x, y);
            *stream << quint32(qAlpha(premultiplied) == 0 ? 0 : qUnpremultiply(premultiplied));
        }
    }
}

void writeMask(QDataStream *stream, const QImage &image)
{
    constexpr int halfOpaque = 128;
    for (int y = CursorExtent - 1; y >= 0; --y) {
        quint8 bits = 0;
        for (int x = 0; x < CursorExtent; ++x) {
            const int transparent = qAlpha(image.pixel(x, y)) < halfOpaque ? 1 : 0;
            bits = quint8(bits << 1 | transparent);
            if (x % 8 == 7) {
                *stream << bits;
            }
        }
    }
}

} // namespace

QByteArray cursorFile(const CursorPicture &cursor)
{
    QByteArray content;
    QDataStream stream(&content, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    writeDirectory(&stream, cursor.hotspot);
    writeBitmapHeader(&stream);
    writePixels(&stream, cursor.image);
    writeMask(&stream, cursor.image);
    return content;
}

FileSet cursorFiles(const QString &sourceFolder, QStringList *errors)
{
    FileSet files;
    const QFileInfoList sources =
        QDir(sourceFolder).entryInfoList({QStringLiteral("*.svg")}, QDir::Files);
    for (const QFileInfo &source : sources) {
        if (const auto cursor = readCursorSource(source.filePath(), errors)) {
            files.insert(QStringLiteral("cursors/%1.cur").arg(source.completeBaseName()),
                         cursorFile(*cursor));
        }
    }
    files.insert(QStringLiteral("cursors.qrc"),
                 resourceCollection(QStringLiteral("/Cursors"), files.keys()));
    return files;
}

} // namespace TARN::Artwork
