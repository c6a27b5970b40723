#pragma once

#include <QtCore/QFileSystemWatcher>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QTimer>

#include <sys/types.h>
#include <utility>

namespace TARN::ThemeTool {

/// Watches the folder of a theme with all that lies below it, however its files are saved: written
/// in place, replaced by another file, or replaced together with the folder.
class ThemeFolderWatcher : public QObject
{
    Q_OBJECT

public:
    /// Watches \a directory, an absolute path. A folder that is missing is waited for.
    explicit ThemeFolderWatcher(const QString &directory, QObject *parent = nullptr);

Q_SIGNALS:
    /// Something in the folder was saved, added or removed. Changes that follow each other within
    /// a few milliseconds are one.
    void themeSaved();

private:
    void noteFolder(const QString &path);
    void noteChange();
    void reportChange();
    void watchAgain();
    void awaitFolder();

    // What tells a folder from another one of its name; zeros for none.
    using FolderId = std::pair<dev_t, ino_t>;
    static FolderId folderId(const QString &path);

    QString m_directory;
    FolderId m_folderId;
    QFileSystemWatcher m_watcher;
    QTimer m_burst;
};

} // namespace TARN::ThemeTool
