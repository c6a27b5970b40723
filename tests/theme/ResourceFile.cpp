#include "ResourceFile.h"

#include <QtCore/QDataStream>
#include <QtCore/QStringList>

namespace {

/// Returns the number that the toolkit looks for \a name by.
quint32 nameHash(const QString &name)
{
    quint32 hash = 0;
    for (const QChar letter : name) {
        hash = (hash << 4) + letter.unicode();
        hash ^= (hash & 0xf0000000U) >> 23;
        hash &= 0x0fffffffU;
    }
    return hash;
}

} // namespace

QByteArray ResourceFile::toBytes() const
{
    constexpr quint32 headerSize = 20;
    constexpr quint16 folder = 2;
    const QStringList segments = path.split(QLatin1Char('/'));
    QByteArray names;
    QByteArray tree;
    QDataStream nameStream(&names, QIODevice::WriteOnly);
    QDataStream treeStream(&tree, QIODevice::WriteOnly);
    treeStream << quint32(0) << folder << quint32(1) << quint32(1);
    for (int each = 0; each < segments.size(); ++each) {
        treeStream << quint32(names.size());
        if (each + 1 < segments.size()) {
            treeStream << folder << quint32(1) << quint32(each + 2);
        } else {
            treeStream << quint16(flags) << quint16(0) << quint16(1) << quint32(0);
        }
        nameStream << quint16(segments[each].size()) << nameHash(segments[each]);
        for (const QChar letter : segments[each]) {
            nameStream << letter.unicode();
        }
    }
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.writeRawData("qres", 4);
    const auto contentPlace = quint32(headerSize + tree.size());
    stream << quint32(1) << headerSize << contentPlace
           << quint32(contentPlace + 4 + quint32(content.size()));
    stream.writeRawData(tree.constData(), tree.size());
    stream << content;
    stream.writeRawData(names.constData(), names.size());
    return bytes;
}
