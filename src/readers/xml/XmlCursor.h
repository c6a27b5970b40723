#pragma once

#include <QtCore/QStringView>

#include <algorithm>

namespace TARN {

/// A place in a text of markup, and the steps that lead from there to the next place of interest.
class XmlCursor
{
public:
    explicit XmlCursor(QStringView text)
        : m_begin(text.begin())
        , m_pos(text.begin())
        , m_end(text.end())
    {
    }

    bool atEnd() const { return m_pos == m_end; }
    /// Returns the character under the cursor, which must not be at the end.
    QChar current() const { return *m_pos; }
    /// Tells whether \a token ends where the cursor is.
    bool isBehind(QStringView token) const { return QStringView(m_begin, m_pos).endsWith(token); }
    bool startsWith(QStringView token) const { return rest().startsWith(token); }

    /// Whether something was searched for that the text does not hold. The cursor is at the end
    /// then.
    bool hasMissed() const { return m_hasMissed; }

    void skip(qsizetype count) { m_pos += count; }
    QChar take() { return *m_pos++; }
    void skipTo(QChar c) { m_pos = std::find(m_pos, m_end, c); }
    /// Moves behind the next \a token, a character or a text.
    void skipPast(QChar c);
    void skipPast(QStringView token);
    void skipSpace()
    {
        takeUntil([](QChar c) { return !isSpace(c); });
    }

    /// Returns the text up to the next character for which \a isEnd holds, or up to the end.
    template <typename Predicate>
    QStringView takeUntil(Predicate isEnd)
    {
        const QChar *const begin = m_pos;
        m_pos = std::find_if(m_pos, m_end, isEnd);
        return {begin, m_pos};
    }

    QStringView takeWord()
    {
        return takeUntil([](QChar c) { return isSpace(c); });
    }

    /// Returns the text between the quotation mark under the cursor and the next one of its kind.
    QStringView takeLiteral();

    /// Returns what stands between the ampersand under the cursor and the semicolon that ends the
    /// reference; a null view when none does.
    QStringView takeReference();

    static bool isSpace(QChar c) { return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r'; }
    static bool isQuote(QChar c) { return c == u'"' || c == u'\''; }

private:
    QStringView rest() const { return {m_pos, m_end}; }

    const QChar *m_begin;
    const QChar *m_pos;
    const QChar *m_end;
    bool m_hasMissed = false;
};

inline void XmlCursor::skipPast(QChar c)
{
    skipTo(c);
    if (atEnd()) {
        m_hasMissed = true;
    } else {
        skip(1);
    }
}

} // namespace TARN
