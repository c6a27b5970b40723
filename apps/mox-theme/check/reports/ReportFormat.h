#pragma once

#include "text/Keywords.h"

namespace TARN::ThemeTool {

/// How findings are written; see report().
enum class ReportFormat { Text, Json, Sarif, Github };

template <>
const QVector<Keyword<ReportFormat>> &keywords<ReportFormat>();

} // namespace TARN::ThemeTool
