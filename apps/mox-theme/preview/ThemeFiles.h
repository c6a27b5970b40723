#pragma once

#include <QtCore/QString>

namespace TARN::ThemeTool {

/// Reads the files of the theme in \a directory as the library does when it applies the theme, and
/// returns one line that says why it could not read one of them wholly; empty when it could. What
/// is applied at the moment stays as it is. Needs an application object.
QString unappliableTheme(const QString &directory);

} // namespace TARN::ThemeTool
