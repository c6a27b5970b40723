#pragma once

#include <mox_common_theme_export.h>

#include <QtCore/QRegularExpression>

namespace TARN {

/// Matches the placeholders of stylesheets; the second group captures the path of the variable.
MOX_COMMON_THEME_EXPORT QRegularExpression placeholderPattern();

} // namespace TARN
