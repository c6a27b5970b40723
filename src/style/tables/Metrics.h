#pragma once

#include "style/asking/Mode.h"

#include <QtWidgets/QStyle>

#include <optional>

namespace TARN {

/// Returns the style's own value of \a metric, in device-independent pixels; nothing when the
/// base style's is to hold.
std::optional<int> pixelMetricOf(int metric, const QWidget *widget, Mode mode);

/// Returns the style's own answer to \a hint; nothing when the base style's is to hold.
std::optional<int> styleHintOf(QStyle::StyleHint hint, const QStyleOption *option,
                               QStyleHintReturn *returnData, Mode mode);

} // namespace TARN
