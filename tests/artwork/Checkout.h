#pragma once

#include <QtCore/QString>

/// Returns the path of a file or folder of the checkout.
inline QString checkout(const char *path)
{
    return QStringLiteral(MOX_CHECKOUT "/") + QString::fromLatin1(path);
}
