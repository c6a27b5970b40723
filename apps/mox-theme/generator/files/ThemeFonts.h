#pragma once

#include "generator/files/FileSet.h"

namespace TARN::ThemeTool {

struct FontTokens;

/// Adds the files in the theme's folder "Fonts" to \a files: the tool's own when \a font is of
/// their family, and those that \a font names. Returns one line that says which of them cannot be
/// read; empty when all can.
QString addFonts(const FontTokens &font, FileSet &files);

} // namespace TARN::ThemeTool
