#pragma once

#include "check/model/Severity.h"

#include <QtCore/QMap>
#include <QtCore/QString>

namespace TARN::ThemeTool {

/// How a theme is checked.
struct CheckSettings
{
    QMap<QString, Severity> rules; ///< by name; the others keep their severity
    bool all = false;              ///< one finding for each missing variable, not for each family
};

} // namespace TARN::ThemeTool
