#pragma once

#include "check/Configuration.h"
#include "check/FindingList.h"

namespace TARN::ThemeTool {

/// Reports placeholders that stay without a text in the library's stylesheets and in those in the
/// folder \a directory. Returns the paths of the variables that placeholders refer to.
QSet<QString> checkStyleSheets(const QString &directory, const Configuration &configuration,
                               FindingList &findings);

} // namespace TARN::ThemeTool
