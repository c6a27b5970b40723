#include "readers/xml/MarkupScanner.h"

#include <algorithm>
#include <utility>

namespace TARN {

namespace {

/// The parser and the document's destructor use some hundred bytes of stack for each level; theme
/// files are about five levels deep.
constexpr int maxElementDepth = 256;

/// Content models are read by recursion, too.
constexpr int maxParenthesisDepth = 64;

/// Sets \a value to what the parser stores for an entity with the value \a literal: references to
/// characters are replaced, those to entities stay. Returns false for a literal that the parser
/// stops at and for references to parameter entities.
bool readEntityValue(QStringView literal, QString &value)
{
    XmlCursor cursor(literal);
    while (!cursor.atEnd()) {
        if (!cursor.startsWith(u"&#")) {
            value += cursor.take();
            continue;
        }
        const QString digits = cursor.takeReference().mid(1).toString();
        bool ok = false;
        const uint code =
            digits.startsWith(u'x') ? digits.midRef(1).toUInt(&ok, 16) : digits.toUInt(&ok, 10);
        if (!ok) {
            return false;
        }
        value += QChar(static_cast<ushort>(code)); // cut off as the parser does
    }
    return !literal.contains(u'%');
}

/// Tells whether the reference \a name stands for one character whatever the document declares.
bool isCharacterReference(QStringView name)
{
    return name.startsWith(u'#') || name == QLatin1String("amp") || name == QLatin1String("lt") ||
           name == QLatin1String("gt") || name == QLatin1String("quot") ||
           name == QLatin1String("apos");
}

} // namespace

bool MarkupScanner::scanDocument()
{
    m_isProlog = true;
    return scanContent();
}

/// Scans the text of an entity, which must be complete: only then does it mean the same wherever
/// it is referred to.
bool MarkupScanner::scanReplacement()
{
    return scanContent() && m_depth == 0 && m_isBalanced && !m_cursor.hasMissed();
}

bool MarkupScanner::scanContent()
{
    while (!m_cursor.atEnd()) {
        if (m_cursor.current() == u'<') {
            if (!scanMarkup()) {
                return false;
            }
        } else if (m_cursor.current() == u'&') {
            if (!addReference(m_cursor.takeReference(), Content)) {
                return false;
            }
        } else {
            skipText();
        }
    }
    return true;
}

void MarkupScanner::skipText()
{
    if (m_entities.isEmpty()) {
        m_cursor.skipTo(u'<');
    } else {
        m_cursor.takeUntil([](QChar c) { return c == u'<' || c == u'&'; });
    }
}

bool MarkupScanner::scanMarkup()
{
    m_extent.hasMarkup = true;
    m_cursor.skip(1);
    switch (m_cursor.atEnd() ? 0 : m_cursor.current().unicode()) {
    case '/':
        skipEndTag();
        return true;
    case '?':
        return scanInstruction();
    case '!':
        return scanDeclaration();
    default:
        return scanStartTag();
    }
}

bool MarkupScanner::scanStartTag()
{
    m_isProlog = false;
    m_extent.depth = qMax(m_extent.depth, m_depth + 1);
    if (m_extent.depth > maxElementDepth || !scanTag()) {
        return false;
    }
    m_depth += m_cursor.isBehind(u"/>") ? 0 : 1;
    return true;
}

/// Scans up to the end of a tag and the references in its literals.
bool MarkupScanner::scanTag()
{
    // Most characters are letters, which the first comparison settles.
    const auto endsText = [](QChar c) { return c <= u'>' && (c == u'>' || XmlCursor::isQuote(c)); };
    m_cursor.takeUntil(endsText);
    while (!m_cursor.atEnd() && m_cursor.current() != u'>') {
        if (!scanReferences(m_cursor.takeLiteral())) {
            return false;
        }
        m_cursor.takeUntil(endsText);
    }
    m_cursor.skipPast(u'>');
    return true;
}

void MarkupScanner::skipEndTag()
{
    m_cursor.skipPast(u'>');
    m_isBalanced = m_isBalanced && m_depth > 0;
    m_depth = qMax(0, m_depth - 1);
}

/// Scans a processing instruction. The XML declaration is none: its values are literals, in which
/// even "?>" is text.
bool MarkupScanner::scanInstruction()
{
    static const QStringView xmlTarget(u"?xml");
    if (!m_cursor.startsWith(xmlTarget)) {
        m_cursor.skip(1);
        m_cursor.skipPast(u"?>");
        return true;
    }
    m_cursor.skip(xmlTarget.size());
    if (m_cursor.atEnd() || XmlCursor::isSpace(m_cursor.current())) {
        return scanTag();
    }
    m_cursor.skipPast(u"?>");
    return true;
}

void MarkupScanner::skipComment()
{
    static const QStringView opening(u"!--");
    m_cursor.skip(opening.size());
    m_cursor.skipPast(u"-->");
}

/// Scans what begins with an exclamation mark: a comment, character data or the document type.
bool MarkupScanner::scanDeclaration()
{
    static const QStringView dataOpening(u"![CDATA[");
    if (m_cursor.startsWith(u"!--")) {
        skipComment();
    } else if (m_cursor.startsWith(dataOpening)) {
        m_cursor.skip(dataOpening.size());
        m_cursor.skipPast(u"]]>");
    } else if (m_cursor.startsWith(u"!D")) {
        return std::exchange(m_isProlog, false) && scanDoctype();
    } else {
        m_isBalanced = false;
    }
    return true;
}

bool MarkupScanner::scanReferences(QStringView literal)
{
    if (m_entities.isEmpty()) {
        return true;
    }
    XmlCursor cursor(literal);
    for (cursor.skipTo(u'&'); !cursor.atEnd(); cursor.skipTo(u'&')) {
        if (!addReference(cursor.takeReference(), Literal)) {
            return false;
        }
    }
    m_isBalanced = m_isBalanced && !cursor.hasMissed();
    return true;
}

bool MarkupScanner::addReference(QStringView name, Place place)
{
    if (name.isEmpty() || isCharacterReference(name)) {
        return true;
    }
    Extent extent;
    const auto size = static_cast<int>(name.size());
    if (!m_entities.measure(QString::fromRawData(name.data(), size), extent) ||
        (place == Literal && extent.hasMarkup)) {
        return false;
    }
    m_extent.size += extent.size;
    m_extent.depth = qMax(m_extent.depth, m_depth + extent.depth);
    m_extent.hasMarkup = m_extent.hasMarkup || extent.hasMarkup;
    return m_extent.size <= m_entities.sizeLimit() && m_extent.depth <= maxElementDepth;
}

bool MarkupScanner::scanDoctype()
{
    while (!m_cursor.atEnd() && m_cursor.current() != u'>') {
        if (XmlCursor::isQuote(m_cursor.current())) {
            m_cursor.takeLiteral();
        } else if (m_cursor.take() == u'[') {
            return scanSubset();
        }
    }
    return true;
}

bool MarkupScanner::scanSubset()
{
    for (m_cursor.skipSpace(); !m_cursor.atEnd() && m_cursor.current() != u']';
         m_cursor.skipSpace()) {
        if (!scanSubsetMarkup()) {
            return false;
        }
    }
    m_cursor.skipPast(u'>');
    return std::all_of(m_defaults.begin(), m_defaults.end(),
                       [this](QStringView literal) { return scanReferences(literal); });
}

bool MarkupScanner::scanSubsetMarkup()
{
    if (m_cursor.take() != u'<') {
        return false;
    }
    if (m_cursor.startsWith(u"!--")) {
        skipComment();
        return true;
    }
    if (m_cursor.startsWith(u"?")) {
        return scanInstruction();
    }
    return m_cursor.startsWith(u"!ENTITY") ? scanEntityDeclaration() : scanDeclarationRest();
}

/// Scans the declaration of an entity. Parameter entities are refused: with them the declarations
/// that follow are not what stands there.
bool MarkupScanner::scanEntityDeclaration()
{
    m_cursor.takeWord();
    m_cursor.skipSpace();
    const QStringView name = m_cursor.takeWord();
    m_cursor.skipSpace();
    if (name.startsWith(u'%')) {
        return false;
    }
    if (!m_cursor.atEnd() && XmlCursor::isQuote(m_cursor.current())) {
        QString value;
        if (!readEntityValue(m_cursor.takeLiteral(), value) ||
            !m_entities.declare(name.toString(), value)) {
            return false;
        }
    }
    return scanDeclarationRest();
}

/// Scans up to the end of a declaration in the document type.
bool MarkupScanner::scanDeclarationRest()
{
    int parenthesisDepth = 0;
    while (!m_cursor.atEnd()) {
        if (XmlCursor::isQuote(m_cursor.current())) {
            m_defaults.append(m_cursor.takeLiteral());
            continue;
        }
        const QChar c = m_cursor.take();
        if (c == u'>') {
            return true;
        }
        parenthesisDepth += (c == u'(' ? 1 : 0) - (c == u')' ? 1 : 0);
        if (c == u'<' || c == u'%' || parenthesisDepth > maxParenthesisDepth) {
            return false;
        }
    }
    return true;
}

} // namespace TARN
