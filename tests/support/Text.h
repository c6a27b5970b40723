#pragma once

#include <QtCore/QString>

/// Returns \a latin1 as a string, where a literal would be long or is a variable.
inline QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}
