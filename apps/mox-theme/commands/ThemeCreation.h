#pragma once

#include <QtCore/QString>

namespace TARN::ThemeTool {

struct TokenProblem;
struct Tokens;

/// Makes the theme of \a tokens in the folder of its name in \a repository, leaves its token file
/// beside that unless one is there, and says so. A theme that is there is written over only when
/// \a force is set. Returns the tool's exit code.
int createTheme(const Tokens &tokens, const QString &repository, bool force);

/// Returns what an author does next with the theme in \a directory, as lines of commands; with
/// \a tokenFile also how the theme is made of that again.
QString nextSteps(const QString &directory, const QString &tokenFile = {});

/// Returns \a problem of the file at \a path, and where it is as editors understand it.
QString located(const QString &path, const TokenProblem &problem);

} // namespace TARN::ThemeTool
