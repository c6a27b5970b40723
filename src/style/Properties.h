#pragma once

#include <QtCore/QObject>
#include <QtCore/QVariant>

namespace TARN {

/// Tells whether \a object exists and its \a property is true.
inline bool isSet(const QObject *object, const char *property)
{
    return object && object->property(property).toBool();
}

/// Tells whether \a object exists and is of the class \a className or one derived from it.
inline bool isA(const QObject *object, const char *className)
{
    return object && object->inherits(className);
}

} // namespace TARN
