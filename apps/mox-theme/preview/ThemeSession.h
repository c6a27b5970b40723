#pragma once

#include <QtCore/QString>

#include <memory>

class QApplication;

namespace TARN {
class BaseTheme;
}

namespace TARN::ThemeTool {

/// Shows an application in the theme of a folder, again and again while its author changes it.
class ThemeSession
{
public:
    /// Creates a session for \a application and the theme in \a directory, an absolute path, and
    /// applies nothing yet.
    ThemeSession(QApplication &application, const QString &directory);
    ThemeSession(const ThemeSession &) = delete;
    ThemeSession &operator=(const ThemeSession &) = delete;
    ~ThemeSession();

    /// Applies the theme as its files say now, in place of the one in force. When the library
    /// cannot read one of them wholly nothing changes. Returns whether the theme was applied.
    bool apply();

    /// Returns one line that says why the last apply() did not; empty when it did.
    QString problem() const;

    /// Returns the name of the theme in force: its display name, or its folder's when it has none.
    QString themeName() const;

    QString directory() const;

private:
    QApplication &m_application;
    QString m_directory;
    std::unique_ptr<BaseTheme> m_theme;
    QString m_problem;
};

} // namespace TARN::ThemeTool
