#include "resources/files/ZstdContent.h"

#include <QtCore/QDataStream>
#include <QtCore/QResource>

namespace TARN {

namespace {

/// Returns a resource file of one file "x" with the content \a packed.
QByteArray archiveOf(const QByteArray &packed)
{
    constexpr quint32 version = 3;
    constexpr quint32 headerSize = 24;
    constexpr quint32 nameSize = 8;
    constexpr quint32 treeSize = 44;
    constexpr quint16 folder = 2;
    constexpr quint16 zstd = 4;
    constexpr quint16 anyTerritory = 0;
    constexpr quint16 anyLanguage = 1;
    constexpr quint64 notChanged = 0;
    QByteArray archive;
    QDataStream stream(&archive, QIODevice::WriteOnly);
    stream.writeRawData("qres", 4);
    stream << version << headerSize << headerSize + treeSize + nameSize << headerSize + treeSize
           << quint32(zstd);
    stream << quint32(0) << folder << quint32(1) << quint32(1) << notChanged;
    stream << quint32(0) << zstd << anyTerritory << anyLanguage << quint32(0) << notChanged;
    // The number that the toolkit finds a name by is that of its only letter.
    stream << quint16(1) << quint32('x') << quint16('x');
    stream << packed; // with its size before it
    return archive;
}

} // namespace

/// The toolkit unpacks only what is registered, so this is, for a moment and where nobody looks.
std::optional<QByteArray> zstdContent(const QByteArray &packed, qint64 mostBytes)
{
    const QString root = QStringLiteral("/TARN/unpacking");
    const QByteArray archive = archiveOf(packed);
    const auto *data = reinterpret_cast<const uchar *>(archive.constData());
    if (!QResource::registerResource(data, root)) {
        return std::nullopt;
    }
    std::optional<QByteArray> content;
    {
        const QResource file(root + QLatin1String("/x"));
        const qint64 size = file.uncompressedSize();
        if (file.isValid() && size >= 0 && size <= mostBytes) {
            content = file.uncompressedData();
        }
        if (content && content->size() != size) {
            content.reset();
        }
    }
    QResource::unregisterResource(data, root);
    return content;
}

} // namespace TARN
