#pragma once

#include <QtCore/QByteArray>

namespace TARN::ThemeTool {

struct ThemeDefinition;

/// Returns the file "qpaletteMapping.xml" of the theme.
QByteArray paletteFile(const ThemeDefinition &definition);

} // namespace TARN::ThemeTool
