#include "icons/Palette.h"

#include <QtCore/QRegularExpression>

namespace TARN::Artwork {

QMap<QString, Palette> parsePalettes(const QString &text, QStringList *errors)
{
    static const QRegularExpression color(QStringLiteral("^#[0-9A-F]{6}$"));
    QMap<QString, Palette> palettes;
    QStringList head;
    for (const QString &line : text.split(QLatin1Char('\n'))) {
        const QStringList words = line.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
        if (words.isEmpty() || line.startsWith(QLatin1Char('#'))) {
            continue;
        }
        if (head.isEmpty()) {
            head = words;
            continue;
        }
        if (words.size() != head.size()) {
            errors->append(
                QStringLiteral("palette: \"%1\" has not one value per column").arg(line));
            continue;
        }
        for (int i = 1; i < words.size(); ++i) {
            if (!color.match(words.at(i)).hasMatch()) {
                errors->append(QStringLiteral("palette: no colour: %1").arg(words.at(i)));
            }
            palettes[head.at(i)].insert(words.first(), words.at(i));
        }
    }
    return palettes;
}

} // namespace TARN::Artwork
