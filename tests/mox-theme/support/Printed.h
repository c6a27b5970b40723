#pragma once

#include <QtCore/QString>

#include <functional>

/// What a command printed, and the exit code that it returned.
struct Printed
{
    QString output;
    QString problems;
    int exitCode = -1;
};

/// Runs \a command and returns what it printed.
Printed printedBy(const std::function<int()> &command);
