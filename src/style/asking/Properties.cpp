#include "style/asking/Properties.h"

#include "style/asking/DeclaredProperties.h"

#include <QtCore/QMetaProperty>

#include <algorithm>
#include <optional>

namespace TARN {

namespace {

/// Tells whether a property was set on \a object that its class does not declare.
bool isDynamic(const QObject &object, Property property)
{
    const QList<QByteArray> names = object.dynamicPropertyNames();
    return std::any_of(names.cbegin(), names.cend(),
                       [property](const QByteArray &name) { return name == nameOf(property); });
}

/// Where \a object has \a property: at an index of its class, or -1 when it was set on the object.
/// Most properties are asked for in vain, which is not to cost even an empty value.
std::optional<int> find(const QObject *object, Property property)
{
    if (!object) {
        return {};
    }
    const int index = declaredIndex(*object->metaObject(), property);
    const bool exists = index >= 0 || isDynamic(*object, property);
    return exists ? std::optional(index) : std::nullopt;
}

QVariant valueAt(int index, const QObject &object, Property property)
{
    return index >= 0 ? object.metaObject()->property(index).read(&object)
                      : object.property(nameOf(property));
}

} // namespace

QVariant propertyOf(const QObject *object, Property property)
{
    const std::optional<int> index = find(object, property);
    return index ? valueAt(*index, *object, property) : QVariant();
}

bool isSet(const QObject *object, Property property)
{
    const std::optional<int> index = find(object, property);
    return index && valueAt(*index, *object, property).toBool();
}

QString textOf(const QObject *object, Property property)
{
    const std::optional<int> index = find(object, property);
    return index ? valueAt(*index, *object, property).toString() : QString();
}

void setProperty(QObject &object, Property property, const QVariant &value)
{
    object.setProperty(nameOf(property), value);
}

} // namespace TARN
