#pragma once

#include <QtCore/QString>

namespace TARN::ThemeTool {

/// What a path leads to.
enum class FolderKind {
    Nothing, ///< nothing, or an empty folder
    Theme,   ///< a folder with a theme's description or configuration
    Other    ///< something that is no theme
};

/// Returns what is at \a path.
FolderKind folderKind(const QString &path);

} // namespace TARN::ThemeTool
