#pragma once

#include <mox_common_theme_export.h>

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace TARN {

class Theme;

/// The process-wide registry of the themes in a theme repository: a directory with one
/// sub-directory per theme.
///
/// To be used from the GUI thread.
class MOX_COMMON_THEME_EXPORT ThemeFactory
{
public:
    /// Returns the factory that the process shares. It is destroyed at process exit.
    static ThemeFactory *getInstance();

    /// Creates a factory without a repository.
    ThemeFactory();
    ThemeFactory(const ThemeFactory &) = delete;
    ThemeFactory &operator=(const ThemeFactory &) = delete;

    /// Deletes the themes in the factory's cache; those that getTheme() created live on.
    ~ThemeFactory();

    /// Sets the repository and lists its themes; those of the former repository are forgotten.
    /// A \a path that is missing or unreadable gives a repository without themes.
    void setThemesRepositoryPath(const QString &path);

    /// Returns the repository's path exactly as it was set; null before that.
    QString getThemesRepositoryPath() const;

    /// Returns the names of the themes, in ascending order: the names of the repository's
    /// sub-directories, save for hidden ones.
    QStringList getAvailableThemes() const;

    /// Returns a new theme object for the theme \a name, or null when the repository has no such
    /// theme. Nobody owns the object: it is meant to live until the process ends, so that an
    /// application may keep pointing to it.
    Theme *getTheme(const QString &name);

    /// Returns a new theme object for the theme directory \a path, which the caller owns. Never
    /// null: a directory that holds no theme gives a theme that applies nothing.
    Theme *readTheme(const QString &path);

private:
    QString m_repositoryPath;
    QMap<QString, QString> m_themeDirectories;
    QMap<QString, Theme *> m_themes;
};

} // namespace TARN
