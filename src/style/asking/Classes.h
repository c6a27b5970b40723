#pragma once

#include <QtCore/QObject>

namespace TARN {

/// Tells whether \a object exists and is of the class \a className or one derived from it; for
/// classes that have no header. The others are asked for faster by qobject_cast.
inline bool isA(const QObject *object, const char *className)
{
    return object && object->inherits(className);
}

/// Tells whether \a object exists and is a Class or, without being one, says so. Nothing may be
/// asked of the latter that not every object of its kind has.
template <typename Class>
bool isLike(const QObject *object)
{
    return qobject_cast<const Class *>(object) || isA(object, Class::staticMetaObject.className());
}

} // namespace TARN
