#include "text/Wording.h"

namespace TARN::ThemeTool {

QString listed(const QStringList &words, const QString &conjunction)
{
    if (words.size() < 2) {
        return words.join(QString());
    }
    return words.mid(0, words.size() - 1).join(", "_s) + u' ' + conjunction + u' ' +
           words.constLast();
}

QString onOneLine(const QString &text)
{
    QString line;
    for (const QChar character : text) {
        if (character.category() == QChar::Other_Control) {
            line += R"(\x%1)"_s.arg(character.unicode(), 2, 16, QChar(u'0'));
        } else {
            line += character;
        }
    }
    return line;
}

} // namespace TARN::ThemeTool
