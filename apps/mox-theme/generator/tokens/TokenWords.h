#pragma once

#include "text/Literals.h"

#include <QtCore/QStringList>

/// The words of a token file, which reading and writing it share.
namespace TARN::ThemeTool {

/// The weights that the library knows, from thin to heavy.
inline QStringList weightWords()
{
    return {"Thin"_s,     "ExtraLight"_s, "Light"_s,     "Normal"_s, "Medium"_s,
            "DemiBold"_s, "Bold"_s,       "ExtraBold"_s, "Black"_s};
}

/// The sizes of fonts and corners in the order of their values.
inline QStringList sizeWords()
{
    return {"small"_s, "base"_s, "medium"_s, "large"_s};
}

} // namespace TARN::ThemeTool
