#pragma once

#include "command_line/CommandLine.h"

#include <QtCore/QHash>

namespace TARN::ThemeTool {

/// A command as it was typed: nothing is missing, unknown or given twice, but values may be
/// anything.
struct TypedCommand
{
    QString name;
    QHash<QString, QStringList> options; ///< by their long names; those that are given
    QStringList arguments;
};

/// Returns \a command with its values understood, or what is wrong with one of them.
Request readRequest(const TypedCommand &command);

/// Returns a problem of \a command; an empty one stands for the tool itself.
Notice problem(const QString &command, const QString &text);

} // namespace TARN::ThemeTool
