#pragma once

#include "check/model/FindingList.h"
#include "check/rules/DescriptionRules.h"

namespace TARN::ThemeTool {

/// Checks the images of the theme in the folder \a directory: their folder, its index, icons and
/// cursors.
void checkImages(const QString &directory, const Description &description, FindingList &findings);

/// Checks the fonts of the theme in the folder \a directory.
void checkFontFiles(const QString &directory, FindingList &findings);

} // namespace TARN::ThemeTool
