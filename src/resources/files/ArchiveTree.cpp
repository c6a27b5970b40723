#include "resources/files/ArchiveTree.h"

#include "resources/files/FileLimits.h"

#include <QtCore/QtEndian>

namespace TARN {

namespace {

enum EntryFlag { ZlibFlag = 1, FolderFlag = 2, ZstdFlag = 4 };

constexpr int flagsOffset = 4;
/// Where in a folder's entry its number of entries stands, and the first of them.
constexpr int countOffset = 6;
constexpr int firstOffset = 10;
/// Where in a file's entry the place of its content stands.
constexpr int contentOffset = 10;

/// Tells whether \a name can stand in a path: others mean another place, or none.
bool isFileName(const QString &name)
{
    return !name.isEmpty() && name != QLatin1String(".") && name != QLatin1String("..") &&
           !name.contains(QLatin1Char('/')) && !name.contains(QChar::Null);
}

} // namespace

ArchiveTree::ArchiveTree(const QByteArray &archive)
    : m_archive(archive)
{
    if (readHeader()) {
        readEntries();
    }
    if (!m_fault.isEmpty()) {
        m_files.clear();
    }
}

bool ArchiveTree::readHeader()
{
    constexpr int headerSize = 20;
    constexpr int flagsSize = 4;
    constexpr int newestVersion = 3;
    if (!m_archive.startsWith("qres") || !has(0, headerSize)) {
        fail(QStringLiteral("it is no resource file"));
        return false;
    }
    const auto version = number<quint32>(4);
    if (version < 1 || version > newestVersion) {
        fail(QStringLiteral("it is of the unknown version %1").arg(version));
        return false;
    }
    m_tree = number<quint32>(8);
    m_contents = number<quint32>(12);
    m_names = number<quint32>(16);
    // Later versions keep in each entry when its file was changed.
    m_entrySize = version == 1 ? 14 : 22;
    const bool isKnown =
        version < 3 || (has(headerSize, flagsSize) &&
                        (number<quint32>(headerSize) & ~quint32(ZlibFlag | ZstdFlag)) == 0);
    if (!isKnown) {
        fail(QStringLiteral("it needs what this version of the toolkit does not have"));
    }
    return isKnown;
}

void ArchiveTree::readEntries()
{
    if (!has(m_tree, m_entrySize)) {
        return;
    }
    if ((number<quint16>(m_tree + flagsOffset) & FolderFlag) == 0) {
        fail(QStringLiteral("its root is no folder"));
        return;
    }
    QVector<Entry> entries{{QString(), 0}};
    QVector<bool> isTaken(int((m_archive.size() - m_tree) / m_entrySize), false);
    for (int each = 0; each < entries.size() && m_fault.isEmpty(); ++each) {
        readEntry(Entry(entries[each]), entries, isTaken);
    }
}

void ArchiveTree::readEntry(const Entry &entry, QVector<Entry> &entries, QVector<bool> &isTaken)
{
    const qint64 offset = m_tree + entry.index * m_entrySize;
    QString path = entry.path;
    if (entry.index > 0) {
        QString name;
        if (!readName(m_names + number<quint32>(offset), name)) {
            return;
        }
        path += QLatin1Char('/') + name;
        if (path.size() > FileLimits::archivePathLength) {
            fail(QStringLiteral("a path in it is too long"));
            return;
        }
    }
    const auto flags = number<quint16>(offset + flagsOffset);
    if ((flags & FolderFlag) != 0) {
        readFolder({path, entry.index}, offset, entries, isTaken);
    } else {
        readFile(path, flags, offset);
    }
}

/// Appends what lies in \a folder to \a entries. No entry lies in two folders, so that the tree has
/// an end.
void ArchiveTree::readFolder(const Entry &folder, qint64 offset, QVector<Entry> &entries,
                             QVector<bool> &isTaken)
{
    const qint64 count = number<quint32>(offset + countOffset);
    const qint64 first = number<quint32>(offset + firstOffset);
    const bool isInside = count == 0 || (first > folder.index && first + count <= isTaken.size());
    if (!isInside) {
        fail(QStringLiteral("what lies in the folder \"%1\" is not there").arg(folder.path));
        return;
    }
    if (entries.size() + count > FileLimits::archiveEntries) {
        fail(QStringLiteral("there are more than %1 files in it").arg(FileLimits::archiveEntries));
        return;
    }
    for (qint64 index = first; index < first + count; ++index) {
        if (isTaken[int(index)]) {
            fail(QStringLiteral("an entry lies in two folders"));
            return;
        }
        isTaken[int(index)] = true;
        entries.append({folder.path, quint32(index)});
    }
}

void ArchiveTree::readFile(const QString &path, quint16 flags, qint64 offset)
{
    constexpr int lengthSize = 4;
    const qint64 content = m_contents + number<quint32>(offset + contentOffset);
    if (!has(content, lengthSize) || !has(content + lengthSize, number<quint32>(content))) {
        return;
    }
    if ((flags & ~(ZlibFlag | ZstdFlag)) != 0 || flags == (ZlibFlag | ZstdFlag)) {
        fail(QStringLiteral("\"%1\" is packed in an unknown way").arg(path));
        return;
    }
    const Packing packing = flags == ZlibFlag ? Zlib : flags == ZstdFlag ? Zstd : Plain;
    m_files.append({path, packing,
                    QByteArray::fromRawData(m_archive.constData() + content + lengthSize,
                                            int(number<quint32>(content)))});
}

bool ArchiveTree::readName(qint64 offset, QString &name)
{
    // The length in characters, and a number that the toolkit finds the name by.
    constexpr int headSize = 6;
    // Beyond, the toolkit takes the length for a negative one.
    constexpr int mostCharacters = 0x7fff;
    if (!has(offset, headSize)) {
        return false;
    }
    const int length = number<quint16>(offset);
    if (length > mostCharacters || !has(offset + headSize, qint64(length) * 2)) {
        fail(QStringLiteral("a name in it is too long"));
        return false;
    }
    for (int index = 0; index < length; ++index) {
        name += QChar(number<quint16>(offset + headSize + qint64(index) * 2));
    }
    if (!isFileName(name)) {
        fail(QStringLiteral("\"%1\" in it is no name of a file").arg(name));
        return false;
    }
    return true;
}

bool ArchiveTree::has(qint64 offset, qint64 size)
{
    const bool isThere = offset + size <= m_archive.size();
    if (!isThere) {
        fail(QStringLiteral("it refers to what lies behind its end"));
    }
    return isThere;
}

template <typename T>
T ArchiveTree::number(qint64 offset) const
{
    return qFromBigEndian<T>(m_archive.constData() + offset);
}

/// Keeps the first fault.
void ArchiveTree::fail(const QString &fault)
{
    if (m_fault.isEmpty()) {
        m_fault = fault;
    }
}

} // namespace TARN
