#include "Markdown.h"

namespace TARN::Reference {

QString row(const QStringList &cells)
{
    return QStringLiteral("| ") + cells.join(QStringLiteral(" | ")) + QStringLiteral(" |\n");
}

QString tableHead(const QStringList &titles)
{
    return row(titles) + QLatin1Char('|') + QStringLiteral("---|").repeated(titles.size()) +
           QLatin1Char('\n');
}

QString code(const QString &text)
{
    return QLatin1Char('`') + text + QLatin1Char('`');
}

QString fillIn(const QString &page, const QMap<QString, MakePart> &parts)
{
    QString result;
    for (const QString &line : page.split(QLatin1Char('\n'))) {
        const auto part = parts.constFind(line);
        result += part == parts.constEnd() ? line + QLatin1Char('\n') : (*part)();
    }
    return result.trimmed() + QLatin1Char('\n');
}

} // namespace TARN::Reference
