#include "style/Properties.h"

#include <algorithm>
#include <array>

namespace TARN {

namespace {

/// Answers of classes to questions about names, each computed once unless another one took its
/// place.
class ClassAnswers
{
public:
    using Question = bool (*)(const QMetaObject &metaObject, const char *name);

    explicit ClassAnswers(Question question)
        : m_question(question)
    {
    }

    bool answer(const QMetaObject &metaObject, const char *name)
    {
        Entry &entry = m_entries.at(slotOf(&metaObject, name));
        if (entry.metaObject != &metaObject || entry.name != name) {
            entry = {&metaObject, name, m_question(metaObject, name)};
        }
        return entry.answer;
    }

private:
    struct Entry
    {
        const QMetaObject *metaObject = nullptr;
        const char *name = nullptr;
        bool answer = false;
    };

    // Some forty names, asked of the few dozen classes that a window consists of.
    static constexpr std::size_t entryCount = 4096;

    static std::size_t slotOf(const QMetaObject *metaObject, const char *name)
    {
        // Meta objects are aligned, so their lowest bits tell nothing.
        const auto object = reinterpret_cast<std::size_t>(metaObject) >> 3U;
        return (object * 31 + reinterpret_cast<std::size_t>(name)) % entryCount;
    }

    Question m_question;
    std::array<Entry, entryCount> m_entries;
};

bool declaresProperty(const QMetaObject &metaObject, const char *name)
{
    return metaObject.indexOfProperty(name) >= 0;
}

bool inheritsClass(const QMetaObject &metaObject, const char *name)
{
    for (const QMetaObject *ancestor = &metaObject; ancestor; ancestor = ancestor->superClass()) {
        if (qstrcmp(ancestor->className(), name) == 0) {
            return true;
        }
    }
    return false;
}

} // namespace

bool hasProperty(const QObject &object, const char *property)
{
    static ClassAnswers declared(declaresProperty);
    if (declared.answer(*object.metaObject(), property)) {
        return true;
    }
    const QList<QByteArray> names = object.dynamicPropertyNames();
    return std::any_of(names.cbegin(), names.cend(),
                       [property](const QByteArray &name) { return name == property; });
}

bool isA(const QObject *object, const char *className)
{
    static ClassAnswers inherited(inheritsClass);
    return object && inherited.answer(*object->metaObject(), className);
}

} // namespace TARN
