#pragma once

#include <QtCore/QString>

class QColor;

/// What the tool prints: results to the standard output, problems to the standard error.
namespace TARN::ThemeTool {

enum class Ink { Plain, Bold, Faint, Red, Yellow, Green };

/// Prints \a text to the standard output, as it is.
void print(const QString &text);

/// Prints \a text to the standard error, as it is.
void printError(const QString &text);

/// Returns \a text in \a ink when the standard output is a terminal that shows colours and the
/// environment does not forbid them (NO_COLOR), else \a text as it is.
QString inked(const QString &text, Ink ink);

/// Returns a patch of \a color and a blank when the standard output is a terminal that shows every
/// colour and the environment does not forbid it, else nothing. Translucency is left out.
QString swatch(const QColor &color);

/// Returns \a text with what would end the line or steer a terminal written by its number.
QString onOneLine(const QString &text);

/// Prints "mox-theme: " and \a problem, on one line whatever it quotes, to the standard error.
/// Returns CannotRun.
int fail(const QString &problem);

/// What an application object is created with: the program's name alone. The options are the
/// tool's own; the toolkit would take those that are spelled like its own for itself.
struct ProgramArguments
{
    int count = 0;
    char **values = nullptr;
};

/// Returns what main() has set; the application object keeps a reference to the count.
ProgramArguments &programArguments();

} // namespace TARN::ThemeTool
