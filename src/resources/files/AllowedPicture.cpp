#include "resources/files/AllowedPicture.h"

#include "resources/kept/SlotCache.h"

#include <QtCore/QDateTime>
#include <QtCore/QDebug>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

namespace TARN {

namespace {

/// A file as long as nobody writes it, and what it is asked for.
struct PictureFile
{
    QString path;
    qint64 size;
    QDateTime changed;
    PictureUse use;

    bool operator==(const PictureFile &other) const
    {
        return path == other.path && size == other.size && changed == other.changed &&
               use == other.use;
    }
    std::size_t hash() const { return mixedHash({qHash(path), std::size_t(use.mostPixels)}); }
};

bool isAllowedFile(const PictureFile &picture)
{
    QFile file(picture.path);
    if (!file.open(QIODevice::ReadOnly)) {
        return true;
    }
    const QString fault = pictureFault(file, picture.path, picture.use);
    if (!fault.isEmpty()) {
        qWarning().noquote().nospace()
            << "The picture " << picture.path << " is not used: " << fault;
    }
    return fault.isEmpty();
}

} // namespace

bool isAllowedPicture(const QString &path, const PictureUse &use)
{
    const QFileInfo info(path);
    if (!info.isFile()) {
        return !info.exists() || info.isDir();
    }
    static SlotCache<PictureFile, bool, 257> allowed(isAllowedFile);
    return allowed.value({path, info.size(), info.lastModified(), use});
}

} // namespace TARN
