#pragma once

#include "check/model/Configuration.h"
#include "check/model/FindingList.h"

namespace TARN::ThemeTool {

/// Reports placeholders that stay without a text in the library's stylesheets and in those in the
/// folder \a directory. Returns the paths of the variables that placeholders refer to.
QSet<QString> checkStyleSheets(const QString &directory, const Configuration &configuration,
                               FindingList &findings);

} // namespace TARN::ThemeTool
