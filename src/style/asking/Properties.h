#pragma once

#include "catalogue/Properties.h"

#include <QtCore/QVariant>

/// What widgets tell about themselves. A property that the class of an object declares hides one
/// that was set on the object.
namespace TARN {

/// Returns the value of \a property; an invalid one when there is no such property or no \a object.
QVariant propertyOf(const QObject *object, Property property);

/// Tells whether \a object exists and its \a property is true.
bool isSet(const QObject *object, Property property);

/// Returns \a property as text, which is empty when there is no such property or no \a object.
QString textOf(const QObject *object, Property property);

/// Hands \a value to \a object.
void setProperty(QObject &object, Property property, const QVariant &value);

} // namespace TARN
