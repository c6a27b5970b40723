#pragma once

#include "readers/xml/EntityTable.h"
#include "readers/xml/XmlCursor.h"

#include <QtCore/QVector>

namespace TARN {

/// Walks once over a document or over the replacement text of an entity.
///
/// It keeps in step with the parser for as long as the text is well-formed; at the first fault the
/// parser stops, so that it does not matter what is seen after it. The operations return false to
/// refuse the text.
class MarkupScanner
{
public:
    MarkupScanner(QStringView text, EntityTable &entities)
        : m_cursor(text)
        , m_entities(entities)
    {
    }

    bool scanDocument();
    bool scanReplacement();
    const Extent &extent() const { return m_extent; }

private:
    enum Place { Content, Literal };

    bool scanContent();
    void skipText();
    bool scanMarkup();
    bool scanStartTag();
    bool scanTag();
    void skipEndTag();
    bool scanInstruction();
    void skipComment();
    bool scanDeclaration();

    bool scanReferences(QStringView literal);
    bool addReference(QStringView name, Place place);

    bool scanDoctype();
    bool scanSubset();
    bool scanSubsetMarkup();
    bool scanEntityDeclaration();
    bool scanDeclarationRest();

    XmlCursor m_cursor;
    EntityTable &m_entities;
    Extent m_extent;
    int m_depth = 0;
    /// False when the text holds the beginning or the end of something without its other half.
    bool m_isBalanced = true;
    /// Whether a document type may still come.
    bool m_isProlog = false;
    /// Defaults of attributes: they may refer to entities that are declared later.
    QVector<QStringView> m_defaults;
};

} // namespace TARN
