#pragma once

#include "check/model/Configuration.h"
#include "check/model/FindingList.h"
#include "check/model/PaletteMapping.h"
#include "check/model/ThemeFile.h"

namespace TARN::ThemeTool {

/// Reads the palette mapping \a file, returns its sound entries in their order, and reports the
/// others. References are looked up in \a configuration.
QVector<MappingEntry> checkPalette(const ThemeFile &file, const Configuration &configuration,
                                   FindingList &findings);

} // namespace TARN::ThemeTool
