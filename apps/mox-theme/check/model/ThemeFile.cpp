#include "check/model/ThemeFile.h"

#include "check/model/FindingList.h"
#include "text/Literals.h"

#include <QtCore/QFileInfo>

#include <algorithm>

namespace TARN::ThemeTool {

ThemeFile::ThemeFile(const QString &path)
    : m_path(path)
    , m_status(readXmlFile(path, m_document, m_source))
{
    findLines();
}

/// Finds where lines begin, which the parser counts by all three ends of a line.
void ThemeFile::findLines()
{
    const QString &text = m_source.text;
    m_lineStarts.append(0);
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        const bool isFirstOfTwo = c == u'\r' && i + 1 < text.size() && text.at(i + 1) == u'\n';
        if (c == u'\n' || (c == u'\r' && !isFirstOfTwo)) {
            m_lineStarts.append(i + 1);
        }
    }
}

void ThemeFile::reportFault(FindingList &findings) const
{
    const QString name = quoted(QFileInfo(m_path).fileName());
    if (m_status == CannotOpen) {
        const bool exists = QFileInfo::exists(m_path);
        findings.add("missing-file"_s, place(),
                     exists ? name + " cannot be opened"_s : name + " is missing"_s);
    } else if (m_status == Faulty) {
        findings.add("not-well-formed"_s, {m_path, m_source.line, m_source.column},
                     name + " is not well-formed, so that nothing of it is read: "_s +
                         m_source.fault);
    }
}

Place ThemeFile::place(const QDomElement &element) const
{
    // The parser tells where the start tag ends.
    const int line = element.lineNumber();
    if (element.isNull() || line < 1 || line > m_lineStarts.size()) {
        return place();
    }
    const QString &text = m_source.text;
    const int end =
        qMin(m_lineStarts.at(line - 1) + qMax(0, element.columnNumber() - 1), text.size() - 1);
    const int begin = text.lastIndexOf(u'<', end);
    if (begin < 0) {
        return {m_path, line, 0};
    }
    const auto *const next = std::upper_bound(m_lineStarts.begin(), m_lineStarts.end(), begin);
    const auto lineIndex = static_cast<int>(next - m_lineStarts.begin()) - 1;
    return {m_path, lineIndex + 1, begin - m_lineStarts.at(lineIndex) + 1};
}

} // namespace TARN::ThemeTool
