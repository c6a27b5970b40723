#pragma once

#include <QtCore/QString>

namespace TARN::ThemeTool {

/// Returns why no theme can be called \a name, which is its folder's name too, as the rest of a
/// sentence that the name begins; empty when one can.
QString themeNameProblem(const QString &name);

} // namespace TARN::ThemeTool
