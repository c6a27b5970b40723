#include "generator/files/ThemeFolder.h"

#include "text/Literals.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

namespace TARN::ThemeTool {

FolderKind folderKind(const QString &path)
{
    const QFileInfo info(path);
    if (!info.isDir()) {
        return info.exists() || info.isSymLink() ? FolderKind::Other : FolderKind::Nothing;
    }
    const QDir folder(path);
    if (folder.exists("theme.xml"_s) || folder.exists("config.xml"_s)) {
        return FolderKind::Theme;
    }
    const bool isEmpty =
        folder.isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    return isEmpty ? FolderKind::Nothing : FolderKind::Other;
}

} // namespace TARN::ThemeTool
