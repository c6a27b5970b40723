#include "generator/files/XmlLayout.h"

#include "text/Literals.h"

namespace TARN::ThemeTool {

namespace {

constexpr int Indentation = 2;
constexpr int LineLength = 100;

QString escaped(const QString &text)
{
    QString result = text.toHtmlEscaped();
    // Blanks of these kinds would be read back as spaces in an attribute.
    result.replace(QLatin1Char('\t'), "&#9;"_s);
    result.replace(QLatin1Char('\n'), "&#10;"_s);
    result.replace(QLatin1Char('\r'), "&#13;"_s);
    return result;
}

QString startTag(const QString &tag, const XmlLayout::Attributes &attributes)
{
    QString result = "<"_s + tag;
    for (const auto &attribute : attributes) {
        result += R"( %1="%2")"_s.arg(attribute.first, escaped(attribute.second));
    }
    return result + ">"_s;
}

/// Returns the words of the comment \a text.
QStringList commentWords(QString text)
{
    // No comment can hold two hyphens in a row.
    while (text.contains("--"_s)) {
        text.replace("--"_s, "- -"_s);
    }
    return text.simplified().split(QLatin1Char(' '));
}

/// Joins \a words to lines of at most \a length characters, as far as the words allow.
QStringList wrapped(const QStringList &words, int length)
{
    QStringList lines;
    for (const QString &word : words) {
        if (!lines.isEmpty() && lines.last().size() + 1 + word.size() <= length) {
            lines.last() += QLatin1Char(' ') + word;
        } else {
            lines.append(word);
        }
    }
    return lines;
}

} // namespace

XmlLayout::XmlLayout()
    : m_text("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"_s)
{
}

void XmlLayout::line(const QString &text)
{
    m_text += QString(Indentation * m_openTags.size(), QLatin1Char(' ')) + text + QLatin1Char('\n');
}

void XmlLayout::open(const QString &tag, const Attributes &attributes)
{
    line(startTag(tag, attributes));
    m_openTags.append(tag);
}

void XmlLayout::close()
{
    const QString tag = m_openTags.takeLast();
    line("</%1>"_s.arg(tag));
}

void XmlLayout::element(const QString &tag, const QString &text, const Attributes &attributes)
{
    line(startTag(tag, attributes) + escaped(text) + "</"_s + tag + ">"_s);
}

void XmlLayout::comment(const QString &text)
{
    if (text.isEmpty()) {
        return;
    }
    const QString start = "<!-- "_s;
    const int length = LineLength - Indentation * m_openTags.size() - start.size();
    // The end mark stays beside the last word.
    QStringList words = commentWords(text);
    words.last() += " -->"_s;
    QStringList lines = wrapped(words, length);
    line(start + lines.takeFirst());
    for (const QString &next : qAsConst(lines)) {
        line(QString(start.size(), QLatin1Char(' ')) + next);
    }
}

void XmlLayout::commentBlock(const QStringList &paragraphs)
{
    line("<!--"_s);
    for (int i = 0; i < paragraphs.size(); ++i) {
        if (i > 0) {
            gap();
        }
        const QStringList lines = wrapped(commentWords(paragraphs.at(i)), LineLength - Indentation);
        for (const QString &next : lines) {
            line(QString(Indentation, QLatin1Char(' ')) + next);
        }
    }
    line("-->"_s);
}

void XmlLayout::gap()
{
    m_text += QLatin1Char('\n');
}

} // namespace TARN::ThemeTool
