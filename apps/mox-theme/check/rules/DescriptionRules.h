#pragma once

#include "check/model/FindingList.h"
#include "check/model/ThemeFile.h"

namespace TARN::ThemeTool {

/// What a theme says of itself.
struct Description
{
    QString name; ///< empty when it says none
    Place place;  ///< of the name
};

/// Reads the description \a file and reports what keeps the library from it.
Description checkDescription(const ThemeFile &file, FindingList &findings);

} // namespace TARN::ThemeTool
