#pragma once

#include <QtCore/QObject>

namespace TARN {

/// Tells whether \a object exists and is of the class \a className or one derived from it; for
/// classes that have no header. The others are asked for faster by qobject_cast.
inline bool isA(const QObject *object, const char *className)
{
    return object && object->inherits(className);
}

} // namespace TARN
