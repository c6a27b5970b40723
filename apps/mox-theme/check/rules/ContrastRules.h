#pragma once

#include "check/model/Demand.h"
#include "check/model/FindingList.h"
#include "check/model/PaletteMapping.h"

namespace TARN::ThemeTool {

/// Reports text, graphics and outlines that do not stand out enough from what they are seen on.
/// What the theme does not define is left out.
void checkContrast(const Configuration &configuration, const Demand &demand,
                   const QVector<MappingEntry> &palette, FindingList &findings);

} // namespace TARN::ThemeTool
