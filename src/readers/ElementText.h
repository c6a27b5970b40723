#pragma once

#include <QtXml/QDomElement>

namespace TARN {

/// Returns the text of \a element as QDomElement::text() does. Nearly every element of a theme file
/// holds one piece of text and nothing else, which needs no copy.
inline QString elementText(const QDomElement &element)
{
    const QDomNode child = element.firstChild();
    const bool isWhole = child.isText() && child.nextSibling().isNull();
    return isWhole ? child.nodeValue() : element.text();
}

} // namespace TARN
