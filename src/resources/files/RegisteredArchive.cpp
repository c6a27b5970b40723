#include "resources/files/RegisteredArchive.h"

#include "resources/files/ArchiveFault.h"
#include "resources/files/FileLimits.h"

#include <QtCore/QDebug>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QResource>
#include <QtCore/QVector>

namespace TARN {

namespace {

const uchar *bytesOf(const QByteArray &archive)
{
    return reinterpret_cast<const uchar *>(archive.constData());
}

void keepForGood(const QByteArray &archive)
{
    static auto *kept = new QVector<QByteArray>;
    kept->append(archive);
}

/// Sets \a archive to what the file at \a path holds. Returns what is wrong with it.
QString readArchive(const QString &path, QByteArray &archive)
{
    QFile file(path);
    // Opening a pipe waits for a writer.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        return QStringLiteral("it cannot be read");
    }
    archive = file.read(FileLimits::archiveBytes + 1);
    return archive.size() > FileLimits::archiveBytes
               ? QStringLiteral("it has more than %1 bytes").arg(FileLimits::archiveBytes)
               : archiveFault(archive);
}

QString placeFault(const QByteArray &archive, const QStringList &folders)
{
    const QString file = folders.isEmpty() ? QString() : fileOutside(archive, folders);
    return file.isEmpty() ? QString()
                          : QStringLiteral("%1 in it lies in none of the folders %2")
                                .arg(file, folders.join(QLatin1String(", ")));
}

} // namespace

RegisteredArchive::RegisteredArchive(const QByteArray &archive)
    : m_archive(archive)
{
    QResource::registerResource(bytesOf(m_archive));
}

RegisteredArchive::~RegisteredArchive()
{
    if (!QResource::unregisterResource(bytesOf(m_archive))) {
        keepForGood(m_archive);
    }
}

std::unique_ptr<RegisteredArchive> registerArchive(const QString &path, const QStringList &folders)
{
    QByteArray archive;
    QString fault = readArchive(path, archive);
    if (fault.isEmpty()) {
        fault = placeFault(archive, folders);
    }
    if (!fault.isEmpty()) {
        qWarning().noquote().nospace()
            << "The resource file " << path << " is not registered: " << fault;
        return nullptr;
    }
    return std::make_unique<RegisteredArchive>(archive);
}

} // namespace TARN
