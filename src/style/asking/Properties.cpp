#include "style/asking/Properties.h"

#include "style/asking/DeclaredProperties.h"

#include <QtCore/QMetaProperty>

#include <algorithm>
#include <array>

namespace TARN {

namespace {

/// Answers to questions about classes and names, each computed once unless another one took its
/// place. A class is known by the address of something that is its alone.
template <typename Answer>
class ClassAnswers
{
public:
    template <typename Question>
    Answer answer(const void *classIdentity, const char *name, Question question)
    {
        Entry &entry = m_entries.at(slotOf(classIdentity, name));
        if (entry.classIdentity != classIdentity || entry.name != name) {
            entry = {classIdentity, name, question()};
        }
        return entry.answer;
    }

private:
    struct Entry
    {
        const void *classIdentity = nullptr;
        const char *name = nullptr;
        Answer answer{};
    };

    // Some forty names, asked of the few dozen classes that a window consists of.
    static constexpr std::size_t entryCount = 4096;

    static std::size_t slotOf(const void *classIdentity, const char *name)
    {
        // Such things are aligned, so their lowest bits tell nothing.
        const auto identity = reinterpret_cast<std::size_t>(classIdentity) >> 3U;
        return (identity * 31 + reinterpret_cast<std::size_t>(name)) % entryCount;
    }

    std::array<Entry, entryCount> m_entries;
};

/// Returns the index of a property that the class declares; -1 when it does not.
int indexOf(const QMetaObject &metaObject, const char *property)
{
    static ClassAnswers<int> indices;
    return indices.answer(&metaObject, property,
                          [&] { return metaObject.indexOfProperty(property); });
}

bool isSetOn(const QObject &object, const char *property)
{
    const QList<QByteArray> names = object.dynamicPropertyNames();
    return std::any_of(names.cbegin(), names.cend(),
                       [property](const QByteArray &name) { return name == property; });
}

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

QVariant propertyOf(const QObject *object, const char *property)
{
    if (!object) {
        return {};
    }
    const QMetaObject *metaObject = object->metaObject();
    const int index = indexOf(*metaObject, property);
    if (index >= 0) {
        return metaObject->property(index).read(object);
    }
    return isSetOn(*object, property) ? object->property(property) : QVariant();
}

bool isSet(const QObject *object, const char *property)
{
    // Most properties are asked for in vain, which is not to cost even an empty value.
    const bool exists =
        object && (indexOf(*object->metaObject(), property) >= 0 || isSetOn(*object, property));
    return exists && propertyOf(object, property).toBool();
}

} // namespace TARN
