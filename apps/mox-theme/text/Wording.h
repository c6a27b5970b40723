#pragma once

#include "text/Literals.h"

#include <QtCore/QStringList>

/// Texts for people.
namespace TARN::ThemeTool {

/// Returns \a count and what is counted: "1 brush", "2 brushes".
inline QString counted(int count, const QString &one, const QString &many)
{
    return QString::number(count) + " "_s + (count == 1 ? one : many);
}

/// Returns \a words as a list in a sentence, such as "a, b or c".
QString listed(const QStringList &words, const QString &conjunction);

/// Returns \a text with what would end the line or steer a terminal written by its number.
QString onOneLine(const QString &text);

} // namespace TARN::ThemeTool
