#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace TARN::Gallery {

/// What the gallery was asked for.
struct CommandLine
{
    enum class Action { ShowWindow, WriteScreenshots, PrintHelp, PrintVersion };

    Action action = Action::ShowWindow;
    QString theme;            ///< empty: the default one
    QString repository;       ///< empty: the shipped one
    QString screenshotFolder; ///< set for Action::WriteScreenshots
    int scale = 0;            ///< 1 or 2; 0: not given
    bool isComplete = true;   ///< everything is to be painted by the theme's style

    /// The arguments that are none of the gallery's: mistakes, or options of the toolkit, which
    /// takes its own away when the application object is created.
    QStringList unknown;
    /// One line that says what is wrong; empty when nothing is.
    QString error;
};

/// Reads \a arguments, which do not include the program's name. An option's value is the argument
/// that follows or stands behind "=". Reading stops at the first mistake.
CommandLine parseCommandLine(const QStringList &arguments);

/// Returns one line that says what is wrong with the first of the unknown arguments; empty when
/// there are none.
QString unknownArgumentError(const CommandLine &commandLine);

/// Returns the text that explains the gallery's options.
QString commandLineHelp();

} // namespace TARN::Gallery
