#include "catalogue/Properties.h"

namespace TARN {

namespace {

QVector<PropertySection> readSections()
{
    QVector<PropertySection> sections;
    const auto add = [&](Property property, PropertyType type, PropertyUse use, const char *bearer,
                         const char *meaning) {
        sections.last().rows.append({property, type, use, bearer, meaning});
    };
#define MOX_SECTION(heading, introduction) sections.append({heading, introduction, {}});
#define MOX_FURTHER(id, type, use, bearer, meaning)                                                \
    add(Property::id, PropertyType::type, PropertyUse::use, bearer, meaning);
#define MOX_PROPERTY(id, name, type, use, bearer, meaning)                                         \
    MOX_FURTHER(id, type, use, bearer, meaning)
#include "catalogue/Properties.def"
    return sections;
}

} // namespace

const QVector<PropertySection> &Catalogue::propertySections()
{
    static const QVector<PropertySection> sections = readSections();
    return sections;
}

} // namespace TARN
