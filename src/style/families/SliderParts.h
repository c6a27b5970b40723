#pragma once

#include <QtCore/QtGlobal>

class QBrush;

/// What sliders and dials have in common.
namespace TARN::Sliders {

/// Between the handle and the ticks, and between these and the edge of the slider.
inline constexpr int tickGap = 2;

/// Returns how many ticks there is room for in \a available pixels.
qint64 mostTicks(int available);

/// Returns \a interval, the distance of the values of neighbouring ticks, or the multiple of it
/// that leaves room between the ticks of a \a range of values in \a available pixels.
qint64 sparseInterval(qint64 interval, qint64 range, int available);

/// Returns the brush of a handle, which the mouse presses or is over.
const QBrush &handleBrush(bool enabled, bool isPressed, bool isHovered);

} // namespace TARN::Sliders
