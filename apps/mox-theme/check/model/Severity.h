#pragma once

#include "text/Keywords.h"

namespace TARN::ThemeTool {

/// What breaking a rule counts as.
enum class Severity { Off, Warning, Error };

template <>
const QVector<Keyword<Severity>> &keywords<Severity>();

} // namespace TARN::ThemeTool
