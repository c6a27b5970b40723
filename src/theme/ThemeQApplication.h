#pragma once

#include <mox_common_theme_export.h>

#include <QtWidgets/QApplication>

namespace TARN {

class Theme;

/// An application object that comes up themed.
///
/// It reads two options from the command line, each with its value in the argument that follows:
/// `--theme <name>` and `--theme-repository <path>`. They win over the constructor's arguments
/// and stay in QCoreApplication::arguments().
///
/// Themes can be switched at run time with setTheme(). An application that wants such a switch to
/// leave nothing of the former theme behind sets its dynamic property "appLiveThemeSwitch" to
/// true before; see BaseTheme::customize().
class MOX_COMMON_THEME_EXPORT ThemeQApplication : public QApplication
{
    Q_OBJECT

public:
    /// Creates the application object and applies the theme that the command line names, if any.
    ThemeQApplication(int &argc, char **argv);

    /// The same with \a theme and \a repository for what the command line leaves out; an empty
    /// text stands for none.
    ThemeQApplication(int &argc, char **argv, const QString &theme, const QString &repository);

    ~ThemeQApplication() override;

    /// Sets whether application objects that are made from now on have their dynamic property
    /// "appCompleteTheming" set to true before a constructor applies its first theme; see
    /// BaseTheme::customize(). Off at first. To be called before the application object is made:
    ///
    /// \code
    /// TARN::ThemeQApplication::setCompleteTheming(true);
    /// TARN::ThemeQApplication application(argc, argv, "Dark",
    /// "/usr/share/mox_common_theme/Themes"); \endcode
    static void setCompleteTheming(bool isComplete);

    /// Takes the options from the command line, sets the repository unless it is empty, and then
    /// applies \a theme unless it is empty. A theme that does not exist leaves the application
    /// unthemed. The constructors call this.
    void init(QString theme, QString repository);

    /// Overwrites \a theme with the argument that follows "--theme" in \a arguments, and
    /// \a repository with the one that follows "--theme-repository". An option that is absent,
    /// stands last or is joined to its value by "=" changes nothing.
    void parseArguments(const QStringList &arguments, QString &theme, QString &repository) const;

    /// Sets the theme factory's repository. An empty \a path stands for the path of the
    /// application's directory with "Themes" appended as it is, without a separator.
    void initThemesRepository(const QString &path);

    /// Returns the path of the theme factory's repository.
    QString getThemeRepository() const;

    /// Applies the repository's theme \a name and returns true, or returns false when there is no
    /// such theme; then nothing changes.
    bool setTheme(const QString &name);

    /// Applies \a theme, which stays the caller's and must outlive the application object or
    /// the next call.
    void setTheme(Theme &theme);

    /// Returns the theme that was applied last, or null when none was.
    Theme *getCurrentTheme() const;

private:
    Theme *m_currentTheme = nullptr;
};

} // namespace TARN
