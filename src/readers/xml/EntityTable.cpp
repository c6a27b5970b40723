#include "readers/xml/EntityTable.h"

#include "readers/xml/MarkupScanner.h"

namespace TARN {

namespace {

/// The parser searches each entity's text for the names of all others, and its cost of removing
/// what it found grows with the square of the text.
constexpr int maxEntityCount = 256;
constexpr int maxEntityText = 65'536;

/// A reference costs the document nodes of its own, however short the entity's text is.
constexpr qint64 referenceCost = 16;

} // namespace

bool EntityTable::declare(const QString &name, const QString &value)
{
    if (m_entities.contains(name)) {
        return true;
    }
    m_entities[name].value = value;
    m_textSize += name.size() + value.size();
    return m_entities.size() <= maxEntityCount && m_textSize <= maxEntityText;
}

bool EntityTable::measure(const QString &name, Extent &extent)
{
    const auto found = m_entities.find(name);
    if (found == m_entities.end()) {
        extent = Extent();
        return true;
    }
    Entity &entity = *found;
    if (entity.state == Unmeasured) {
        entity.state = Unusable; // which an entity that contains itself finds
        MarkupScanner scanner(entity.value, *this);
        if (scanner.scanReplacement()) {
            entity.extent = scanner.extent();
            entity.extent.size += entity.value.size() + referenceCost;
            entity.state = Measured;
        }
    }
    extent = entity.extent;
    return entity.state == Measured;
}

} // namespace TARN
