#include "resources/files/CheckedFolder.h"

#include "resources/files/AllowedPicture.h"
#include "resources/files/FileLimits.h"

#include <QtCore/QDebug>
#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFileInfo>
#include <QtCore/QSet>
#include <QtCore/QSettings>
#include <QtGui/QImageReader>

#include <algorithm>

namespace TARN {

namespace {

void warn(const QString &path, const QString &fault)
{
    qWarning().noquote().nospace() << "The file " << path << " is not used: " << fault;
}

bool isNamedLikePicture(const QFileInfo &file)
{
    static const QSet<QByteArray> extensions = [] {
        const QList<QByteArray> formats = QImageReader::supportedImageFormats();
        QSet<QByteArray> names(formats.begin(), formats.end());
        names.insert("gz");
        return names;
    }();
    return extensions.contains(file.suffix().toLower().toLatin1());
}

/// Tells whether the index of an icon theme at \a path names folders outside of its own, or icon
/// themes outside of where they lie.
bool hasNamesOutside(const QString &path)
{
    const QSettings index(path, QSettings::IniFormat);
    const QStringList names =
        index.allKeys() + index.value(QStringLiteral("Icon Theme/Inherits")).toStringList();
    return std::any_of(names.begin(), names.end(), leadsOutside);
}

bool isAllowed(const QFileInfo &file)
{
    const QString path = file.filePath();
    if (!file.isFile()) {
        warn(path, QStringLiteral("it is a pipe or a device"));
        return false;
    }
    if (file.fileName() == QLatin1String("index.theme") && hasNamesOutside(path)) {
        warn(path, QStringLiteral("it names folders outside of its own"));
        return false;
    }
    return !isNamedLikePicture(file) || isAllowedPicture(path, {FileLimits::picturePixels, false});
}

/// What lies in a folder, as far as it may be used.
struct Content
{
    QStringList paths; ///< relative to the folder
    bool isWhole = true;
};

Content allowedContent(const QString &folder)
{
    Content content;
    const int folderLength = folder.size();
    int count = 0;
    QDirIterator entries(folder, QDir::Files | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories | QDirIterator::FollowSymlinks);
    while (entries.hasNext()) {
        entries.next();
        // A link may lead to all files of the system.
        if (++count > FileLimits::themeFiles) {
            warn(folder,
                 QStringLiteral("there are more than %1 files in it").arg(FileLimits::themeFiles));
            return {{}, false};
        }
        const QFileInfo file = entries.fileInfo();
        // Links to nothing are in nobody's way.
        if (!file.exists()) {
            continue;
        }
        if (isAllowed(file)) {
            content.paths.append(file.filePath().mid(folderLength));
        } else {
            content.isWhole = false;
        }
    }
    return content;
}

/// Returns the path of a folder that does not exist. Even a name that leads out of it leads to
/// nothing but what is compiled in.
QString nowhere()
{
    return QStringLiteral(":/TARN/nowhere/");
}

std::unique_ptr<QTemporaryDir> linksTo(const QString &folder, const QStringList &paths)
{
    auto links = std::make_unique<QTemporaryDir>();
    for (const QString &path : links->isValid() ? paths : QStringList()) {
        const QString link = links->filePath(path);
        QDir().mkpath(QFileInfo(link).path());
        QFile::link(QFileInfo(folder + path).absoluteFilePath(), link);
    }
    return links;
}

} // namespace

bool leadsOutside(const QString &path)
{
    return path.split(QLatin1Char('/')).contains(QLatin1String(".."));
}

CheckedFolder::CheckedFolder(const QString &folder, const QString &name)
    : m_path(folder)
{
    if (leadsOutside(name)) {
        warn(folder + name, QStringLiteral("it lies outside of the theme's images"));
        m_path = nowhere();
        return;
    }
    const Content content = allowedContent(folder);
    if (!content.isWhole) {
        m_links = linksTo(folder, content.paths);
        m_path = m_links->isValid() ? m_links->path() + QLatin1Char('/') : nowhere();
    }
}

} // namespace TARN
