#include "style/families/SliderParts.h"

#include "catalogue/Names.h"

namespace TARN::Sliders {

namespace {

/// Ticks that are closer to each other than this would look like a bar.
constexpr int minimumTickDistance = 3;

/// More ticks than that fit no screen.
constexpr qint64 maximumTickCount = 4096;

} // namespace

qint64 mostTicks(int available)
{
    return qBound<qint64>(1, available / minimumTickDistance, maximumTickCount);
}

qint64 sparseInterval(qint64 interval, qint64 range, int available)
{
    const qint64 most = mostTicks(available);
    const qint64 wanted = qMax<qint64>(1, interval);
    const qint64 count = range / wanted;
    return count > most ? wanted * ((count + most - 1) / most) : wanted;
}

const QBrush &handleBrush(bool enabled, bool isPressed, bool isHovered)
{
    if (enabled && isPressed) {
        return themeBrush(BrushName::SliderThumbNailPressedBrush, true);
    }
    if (enabled && isHovered) {
        return themeBrush(BrushName::SliderThumbNailHoverBrush, true);
    }
    return themeBrush(BrushName::InputForegroundBrush, enabled);
}

} // namespace TARN::Sliders
