#pragma once

#include "text/Inks.h"

#include <QtCore/QString>

/// What the tool prints: results to the standard output, problems to the standard error.
namespace TARN::ThemeTool {

/// Prints \a text to the standard output, as it is.
void print(const QString &text);

/// Prints \a text to the standard error, as it is.
void printError(const QString &text);

/// Returns the inks that the standard output shows: none unless it is a terminal, and the
/// environment does not forbid them (NO_COLOR).
Inks terminalInks();

/// Prints "mox-theme: " and \a problem, on one line whatever it quotes, to the standard error.
/// Returns CannotRun.
int fail(const QString &problem);

} // namespace TARN::ThemeTool
