#include "preview/ThemeFolderWatcher.h"

#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <sys/stat.h>

namespace TARN::ThemeTool {

namespace {

// Milliseconds after its first change in which a burst is over: editors write a backup, a new file
// and its attributes one after the other.
constexpr int BurstTime = 30;

QStringList contentsOf(const QString &directory)
{
    QStringList paths{directory};
    QDirIterator entries(directory, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        paths.append(entries.next());
    }
    return paths;
}

// Where a folder will show up that is missing now.
QString nearestFolder(QString path)
{
    while (!QFileInfo(path).isDir()) {
        path = QFileInfo(path).path();
    }
    return path;
}

} // namespace

ThemeFolderWatcher::ThemeFolderWatcher(const QString &directory, QObject *parent)
    : QObject(parent)
    , m_directory(directory)
{
    m_burst.setSingleShot(true);
    m_burst.setTimerType(Qt::PreciseTimer);
    m_burst.setInterval(BurstTime);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &ThemeFolderWatcher::noteChange);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this,
            &ThemeFolderWatcher::noteFolder);
    connect(&m_burst, &QTimer::timeout, this, &ThemeFolderWatcher::reportChange);
    watchAgain();
}

ThemeFolderWatcher::FolderId ThemeFolderWatcher::folderId(const QString &path)
{
    struct stat status = {};
    const bool exists = stat(QFile::encodeName(path).constData(), &status) == 0;
    return exists ? FolderId(status.st_dev, status.st_ino) : FolderId();
}

void ThemeFolderWatcher::noteFolder(const QString &path)
{
    const bool isInside = path == m_directory || path.startsWith(m_directory + u'/');
    if (isInside || folderId(m_directory) != m_folderId) {
        noteChange();
    } else if (m_folderId == FolderId()) {
        // The folders above it may have come nearer.
        watchAgain();
    }
}

// A change does not put off the end of the burst, so that steady writing is shown as well.
void ThemeFolderWatcher::noteChange()
{
    if (!m_burst.isActive()) {
        m_burst.start();
    }
}

void ThemeFolderWatcher::reportChange()
{
    // First, so that what is saved from here on is noticed: whoever hears the signal reads what
    // was saved before.
    watchAgain();
    Q_EMIT themeSaved();
}

// All anew: the file that took another's place has its path, but is not watched yet.
void ThemeFolderWatcher::watchAgain()
{
    const QStringList former = m_watcher.files() + m_watcher.directories();
    if (!former.isEmpty()) {
        m_watcher.removePaths(former);
    }
    m_folderId = folderId(m_directory);
    if (QFileInfo(m_directory).isDir()) {
        // A folder does not hear that another one takes its place, but the one above does.
        m_watcher.addPaths(contentsOf(m_directory) << QFileInfo(m_directory).path());
    } else {
        awaitFolder();
    }
}

// Folders may come up while it looks for them.
void ThemeFolderWatcher::awaitFolder()
{
    QString path;
    while (path != nearestFolder(m_directory)) {
        path = nearestFolder(m_directory);
        m_watcher.addPath(path);
    }
    if (path == m_directory) {
        noteChange();
    }
}

} // namespace TARN::ThemeTool
