#pragma once

#include <QtCore/QByteArray>

namespace TARN::ThemeTool {

struct ThemeDefinition;

/// Returns the file "config.xml" of the theme: every value but the palette's.
QByteArray configurationFile(const ThemeDefinition &definition);

} // namespace TARN::ThemeTool
