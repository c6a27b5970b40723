#pragma once

#include "text/Literals.h"

/// Texts for people.
namespace TARN::ThemeTool {

/// Returns \a count and what is counted: "1 brush", "2 brushes".
inline QString counted(int count, const QString &one, const QString &many)
{
    return QString::number(count) + " "_s + (count == 1 ? one : many);
}

} // namespace TARN::ThemeTool
