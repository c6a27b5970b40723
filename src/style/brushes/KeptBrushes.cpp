#include "style/brushes/KeptBrushes.h"

#include "catalogue/Names.h"
#include "catalogue/WidgetColors.h"
#include "resources/kept/KeptValue.h"

namespace TARN {

namespace {

/// Returns the brush \a Name, resolved once for each state. Each instance of this template keeps
/// the two brushes of one name.
template <BrushName Name>
const QBrush &keptBrush(bool enabled)
{
    if (WidgetColors::current()) {
        return themeBrush(Name, enabled);
    }
    static ProcessCached<QBrush> enabledBrush([] { return themeBrush(Name, true); });
    static ProcessCached<QBrush> disabledBrush([] { return themeBrush(Name, false); });
    return enabled ? enabledBrush.value() : disabledBrush.value();
}

} // namespace

const QBrush &cardBorderBrush(bool enabled)
{
    return keptBrush<BrushName::CardBorderBrush>(enabled);
}

const QBrush &grooveBrush(bool enabled)
{
    return keptBrush<BrushName::GrooveBackgroundBrush>(enabled);
}

} // namespace TARN
