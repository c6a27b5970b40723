#pragma once

#include <QtCore/QString>

namespace TARN::ThemeTool {

struct ThemeDefinition;

/// Writes the theme that \a definition describes to the folder \a directory: its description,
/// configuration, palette, fonts and icons. The folder is replaced as a whole once everything is
/// written, so that no half theme is ever seen. Files that the definition has nothing to say about
/// are an author's own and stay. A folder that is there and is neither empty nor a theme is left
/// alone.
///
/// Returns one line that says what went wrong; empty when nothing did, else the folder is as it
/// was.
QString writeTheme(const ThemeDefinition &definition, const QString &directory);

} // namespace TARN::ThemeTool
