#pragma once

#include <QtCore/QObject>
#include <QtCore/QVariant>

/// What widgets tell about themselves. Painting asks often, and mostly in vain: what the classes of
/// the widgets settle is remembered by class. All names must be string literals.
namespace TARN {

/// Tells whether \a object has \a property, declared by its class or set on it.
bool hasProperty(const QObject &object, const char *property);

/// Returns the value of \a property; an invalid one when there is no \a object or no such property.
inline QVariant propertyOf(const QObject *object, const char *property)
{
    return object && hasProperty(*object, property) ? object->property(property) : QVariant();
}

/// Tells whether \a object exists and its \a property is true.
inline bool isSet(const QObject *object, const char *property)
{
    return propertyOf(object, property).toBool();
}

/// Tells whether \a object exists and is of the class \a className or one derived from it.
bool isA(const QObject *object, const char *className);

} // namespace TARN
