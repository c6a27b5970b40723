#include "resources/files/RasterPixels.h"

#include <QtCore/QByteArray>
#include <QtCore/QIODevice>
#include <QtCore/QSize>
#include <QtCore/QtEndian>
#include <QtGui/QImageReader>

#include <algorithm>

namespace TARN {

namespace {

qint64 pixelsOf(qint64 width, qint64 height)
{
    return std::max<qint64>(0, width) * std::max<qint64>(0, height);
}

template <typename T>
T littleEndian(const QByteArray &bytes, int offset)
{
    return qFromLittleEndian<T>(bytes.constData() + offset);
}

template <typename T>
T bigEndian(const QByteArray &bytes, int offset)
{
    return qFromBigEndian<T>(bytes.constData() + offset);
}

/// Reads the directory of a Windows icon or cursor file. What it says of a picture's size does not
/// hold for pictures in the PNG format, and may leave that of a bitmap to the bitmap.
class IconDirectory
{
public:
    explicit IconDirectory(QIODevice &device)
        : m_device(device)
    {
    }

    /// Returns the pixels of the largest picture: no more than one is decoded at a time.
    qint64 pixels()
    {
        constexpr int headerSize = 6;
        constexpr int entrySize = 16;
        const QByteArray header = bytesAt(0, headerSize);
        const int count = header.size() == headerSize ? littleEndian<quint16>(header, 4) : 0;
        qint64 most = 0;
        for (int index = 0; index < count; ++index) {
            const QByteArray entry = bytesAt(headerSize + qint64(index) * entrySize, entrySize);
            if (entry.size() < entrySize) {
                break;
            }
            most = std::max(most, pixelsOfEntry(entry));
        }
        return most;
    }

private:
    QByteArray bytesAt(qint64 offset, int size)
    {
        return m_device.seek(offset) ? m_device.read(size) : QByteArray();
    }

    qint64 pixelsOfEntry(const QByteArray &entry)
    {
        constexpr int neededSize = 24;
        const QByteArray picture = bytesAt(littleEndian<quint32>(entry, 12), neededSize);
        if (picture.size() < neededSize) {
            return 0;
        }
        if (picture.startsWith("\x89PNG\r\n\x1a\n")) {
            return pixelsOf(bigEndian<qint32>(picture, 16), bigEndian<qint32>(picture, 20));
        }
        constexpr quint32 bitmapHeaderSize = 40;
        return littleEndian<quint32>(picture, 0) == bitmapHeaderSize
                   ? pixelsOfBitmap(entry, picture)
                   : 0;
    }

    /// Returns 0 for a bitmap that the file is too small for, which can't be decoded.
    qint64 pixelsOfBitmap(const QByteArray &entry, const QByteArray &bitmap) const
    {
        constexpr int bitsInByte = 8;
        const int width = uchar(entry.at(0));
        const int height = uchar(entry.at(1));
        // A bitmap's height is that of its colours and of its mask together.
        const qint64 pixels = pixelsOf(width > 0 ? width : littleEndian<qint32>(bitmap, 4),
                                       height > 0 ? height : littleEndian<qint32>(bitmap, 8) / 2);
        const int bits = std::max<int>(1, littleEndian<quint16>(bitmap, 14));
        return pixels / bitsInByte > m_device.size() / bits ? 0 : pixels;
    }

    QIODevice &m_device;
};

} // namespace

qint64 rasterPixels(QIODevice &device)
{
    QImageReader reader(&device);
    const QByteArray format = reader.format();
    const QSize size = reader.size();
    qint64 pixels = pixelsOf(size.width(), size.height());
    if (format == "ico" || format == "cur") {
        pixels = std::max(pixels, IconDirectory(device).pixels());
    }
    device.seek(0);
    return pixels;
}

} // namespace TARN
