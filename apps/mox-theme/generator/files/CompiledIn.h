#pragma once

#include "generator/files/FileSet.h"

namespace TARN::ThemeTool {

/// Returns the files in the resource folder \a folder of the tool, their names with \a prefix
/// before them.
FileSet compiledInFiles(const QString &folder, const QString &prefix);

} // namespace TARN::ThemeTool
