#pragma once

#include <QtCore/QStringList>

namespace TARN::ThemeTool {

/// Returns the name of a theme, which its folder takes, made of the first of \a names of which
/// anything is left.
QString themeNameFrom(const QStringList &names);

} // namespace TARN::ThemeTool
