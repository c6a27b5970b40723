#include "resources/files/ArchiveFault.h"

#include "resources/files/ArchiveTree.h"
#include "resources/files/FileLimits.h"
#include "resources/files/Inflated.h"
#include "resources/files/PictureFault.h"
#include "resources/files/ZstdContent.h"

#include <QtCore/QBuffer>
#include <QtCore/QStringList>
#include <QtCore/QtEndian>

#include <algorithm>
#include <optional>

namespace TARN {

namespace {

/// Returns the content of \a file when it can be unpacked to at most \a mostBytes, and to as many
/// as it tells: the toolkit believes what a file tells even where it could not be unpacked.
std::optional<QByteArray> unpacked(const ArchiveTree::File &file, qint64 mostBytes)
{
    constexpr int sizeBytes = 4;
    switch (file.packing) {
    case ArchiveTree::Zlib: {
        if (file.content.size() < sizeBytes) {
            return std::nullopt;
        }
        const qint64 size = qFromBigEndian<quint32>(file.content.constData());
        const auto content = inflated(file.content.mid(sizeBytes), qMin(size, mostBytes));
        return content && content->size() == size ? content : std::nullopt;
    }
    case ArchiveTree::Zstd:
        return zstdContent(file.content, mostBytes);
    case ArchiveTree::Plain:
        break;
    }
    return file.content;
}

QString contentFault(const ArchiveTree::File &file, QByteArray content)
{
    QBuffer buffer(&content);
    buffer.open(QIODevice::ReadOnly);
    const QString fault = pictureFault(buffer, file.path, {FileLimits::picturePixels, false});
    return fault.isEmpty() ? QString() : file.path + QLatin1String(": ") + fault;
}

} // namespace

QString archiveFault(const QByteArray &archive)
{
    const ArchiveTree tree(archive);
    qint64 bytesLeft = FileLimits::archiveBytes;
    for (const ArchiveTree::File &file : tree.files()) {
        const std::optional<QByteArray> content = unpacked(file, bytesLeft);
        if (!content || content->size() > bytesLeft) {
            return QStringLiteral("%1 in it is damaged, or all of it has more than %2 bytes")
                .arg(file.path)
                .arg(FileLimits::archiveBytes);
        }
        bytesLeft -= content->size();
        QString fault = contentFault(file, *content);
        if (!fault.isEmpty()) {
            return fault;
        }
    }
    return tree.fault();
}

QString fileOutside(const QByteArray &archive, const QStringList &folders)
{
    const ArchiveTree tree(archive);
    for (const ArchiveTree::File &file : tree.files()) {
        QString path = QLatin1Char(':') + file.path;
        const bool isInside = std::any_of(folders.begin(), folders.end(), [&](const auto &folder) {
            return path.startsWith(folder + QLatin1Char('/'));
        });
        if (!isInside) {
            return path;
        }
    }
    return {};
}

} // namespace TARN
