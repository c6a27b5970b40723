#pragma once

#include "text/Keywords.h"

namespace TARN::ThemeTool {

/// What kind of theme is made.
enum class Base { Dark, Light, HighContrast };

template <>
const QVector<Keyword<Base>> &keywords<Base>();

} // namespace TARN::ThemeTool
