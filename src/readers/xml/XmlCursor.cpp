#include "readers/xml/XmlCursor.h"

namespace TARN {

namespace {

/// Tells whether \a c can be no part of a reference. Looking for the semicolon alone would take
/// very long in a text of ampersands.
bool endsReference(QChar c)
{
    static const QStringView delimiters(u";&<>\"'%");
    return XmlCursor::isSpace(c) || delimiters.contains(c);
}

} // namespace

void XmlCursor::skipPast(QStringView token)
{
    const qsizetype index = rest().indexOf(token);
    m_hasMissed = m_hasMissed || index < 0;
    m_pos = index < 0 ? m_end : m_pos + index + token.size();
}

QStringView XmlCursor::takeLiteral()
{
    const QChar quote = take();
    const QStringView literal = takeUntil([quote](QChar c) { return c == quote; });
    m_hasMissed = m_hasMissed || atEnd();
    skip(atEnd() ? 0 : 1);
    return literal;
}

QStringView XmlCursor::takeReference()
{
    skip(1);
    const QStringView name = takeUntil(endsReference);
    if (atEnd() || current() != u';') {
        m_hasMissed = true;
        return {};
    }
    skip(1);
    return name;
}

} // namespace TARN
