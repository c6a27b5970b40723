#pragma once

#include "check/model/Demand.h"
#include "check/model/FindingList.h"

namespace TARN::ThemeTool {

/// Reports what the library asks for and the theme does not define: each name when \a all is true,
/// else each family of names once.
void reportMissing(const Configuration &configuration, const Demand &demand, bool all,
                   FindingList &findings);

/// Reports the entries that are neither asked for nor among \a referred, the paths of the variables
/// that brushes, the palette and stylesheets refer to.
void reportUnused(const Configuration &configuration, const Demand &demand,
                  const QSet<QString> &referred, FindingList &findings);

} // namespace TARN::ThemeTool
