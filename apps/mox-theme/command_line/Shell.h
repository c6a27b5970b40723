#pragma once

#include "text/Keywords.h"

namespace TARN::ThemeTool {

/// The shells that complete the tool's command line.
enum class Shell { Bash, Zsh, Fish };

template <>
const QVector<Keyword<Shell>> &keywords<Shell>();

} // namespace TARN::ThemeTool
