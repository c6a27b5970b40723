#pragma once

#include "check/model/FindingList.h"

namespace TARN::ThemeTool {

/// Checks the index of a theme's icons at \a path, without which icons are not found by their names
/// in the icon theme.
void checkIconIndex(const QString &path, FindingList &findings);

} // namespace TARN::ThemeTool
