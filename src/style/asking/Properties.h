#pragma once

#include <QtCore/QObject>
#include <QtCore/QVariant>

/// What widgets tell about themselves. Painting asks often, and mostly in vain: what the classes of
/// the widgets settle is remembered by class. All names must be string literals.
namespace TARN {

/// Returns the value of \a property, declared by the class of \a object or set on it; an invalid
/// one when there is no such property or no \a object.
QVariant propertyOf(const QObject *object, const char *property);

/// Tells whether \a object exists and its \a property is true.
bool isSet(const QObject *object, const char *property);

/// Tells whether \a object exists and is of the class \a className or one derived from it.
bool isA(const QObject *object, const char *className);

} // namespace TARN
