#pragma once

#include "generator/files/FileSet.h"

namespace TARN::ThemeTool {

struct ThemeDefinition;

/// Adds what the theme's folder "Images" holds to \a files: an icon theme of the theme's name, in
/// which widgets find the icons that they ask for by their standard names, and the author's own
/// images. Returns one line that says which of them cannot be read; empty when all can.
QString addImages(const ThemeDefinition &definition, FileSet &files);

} // namespace TARN::ThemeTool
