#include "style/asking/Properties.h"

#include "style/asking/DeclaredProperties.h"

#include <QtCore/QMetaProperty>

#include <algorithm>

namespace TARN {

namespace {

/// Tells whether a property was set on \a object that its class does not declare.
bool isDynamic(const QObject &object, Property property)
{
    const QList<QByteArray> names = object.dynamicPropertyNames();
    return std::any_of(names.cbegin(), names.cend(),
                       [property](const QByteArray &name) { return name == nameOf(property); });
}

/// Returns the value of a property that is declared at \a index, or dynamic when that is -1.
QVariant valueOf(const QObject &object, Property property, int index)
{
    return index >= 0 ? object.metaObject()->property(index).read(&object)
                      : object.property(nameOf(property));
}

} // namespace

QVariant propertyOf(const QObject *object, Property property)
{
    if (!object) {
        return {};
    }
    const int index = declaredIndex(*object->metaObject(), property);
    const bool exists = index >= 0 || isDynamic(*object, property);
    return exists ? valueOf(*object, property, index) : QVariant();
}

bool isSet(const QObject *object, Property property)
{
    if (!object) {
        return false;
    }
    // Most properties are asked for in vain, which is not to cost even an empty value.
    const int index = declaredIndex(*object->metaObject(), property);
    const bool exists = index >= 0 || isDynamic(*object, property);
    return exists && valueOf(*object, property, index).toBool();
}

void setProperty(QObject &object, Property property, const QVariant &value)
{
    object.setProperty(nameOf(property), value);
}

} // namespace TARN
