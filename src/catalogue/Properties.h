#pragma once

#include <QtCore/QVector>

#include <iterator>

/// The properties by which widgets, the application object and the style tell each other something.
namespace TARN {

enum class Property : quint8 {
#define MOX_PROPERTY(id, name, type, use, bearer, meaning) id,
#include "catalogue/Properties.def"
};

inline constexpr const char *propertyNames[] = {
#define MOX_PROPERTY(id, name, type, use, bearer, meaning) name,
#include "catalogue/Properties.def"
};

inline constexpr std::size_t propertyCount = std::size(propertyNames);

/// Returns the name as widgets spell it.
constexpr const char *nameOf(Property property)
{
    return propertyNames[static_cast<std::size_t>(property)];
}

enum class PropertyType {
    Bool,
    Int,
    Number, ///< a double
    Text,
    Alignment, ///< Qt::Alignment or int
    Shape,     ///< QFrame::Shape
    Brush,
    Color,
    ColorList,
    Font,
    Icon,
    Pixmap,
    Map
};

/// Who sets a property, and what for.
enum class PropertyUse {
    Read,    ///< an application; the style heeds it
    Mark,    ///< the same, on a widget of any class that thereby tells polishing what it is
    Preset,  ///< the style when it polishes a widget; it heeds it, too
    Handed,  ///< the library, for others to read
    Internal ///< the library or the toolkit for itself
};

/// What a property means on some of its bearers.
struct PropertyRow
{
    Property property;
    PropertyType type;
    PropertyUse use;
    const char *bearer;  ///< what it is set on
    const char *meaning; ///< in Markdown, as the bearer
};

/// The rows that stand under one heading.
struct PropertySection
{
    const char *heading;
    const char *introduction; ///< what to know about all of them, in Markdown; may be empty
    QVector<PropertyRow> rows;
};

namespace Catalogue {

/// Returns all properties, each in one row at least.
const QVector<PropertySection> &propertySections();

} // namespace Catalogue

} // namespace TARN
