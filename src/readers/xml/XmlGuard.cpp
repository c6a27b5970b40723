#include "readers/xml/XmlGuard.h"

#include "readers/xml/MarkupScanner.h"

namespace TARN {

namespace {

/// What the replacement of references may add to a document, in characters: so much that no small
/// file notices, and at most as much again as a large one holds.
constexpr qint64 minExpansionLimit = 1'048'576;

} // namespace

bool isSafeXml(QStringView text)
{
    EntityTable entities(qMax<qint64>(minExpansionLimit, text.size()));
    return MarkupScanner(text, entities).scanDocument();
}

} // namespace TARN
