#pragma once

#include "check/Demand.h"
#include "check/FindingList.h"
#include "check/PaletteMapping.h"

namespace TARN::ThemeTool {

/// Reports text, graphics and outlines that do not stand out enough from what they are seen on.
/// What the theme does not define is left out.
void checkContrast(const Configuration &configuration, const Demand &demand,
                   const QVector<MappingEntry> &palette, FindingList &findings);

} // namespace TARN::ThemeTool
