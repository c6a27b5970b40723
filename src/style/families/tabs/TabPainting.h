#pragma once

#include "style/asking/Requests.h"

namespace TARN {
class BaseStyle;
}

/// The painting of tab bars and tab widgets.
namespace TARN::Tabs {

bool drawWidgetFrame(const BaseStyle &style, const PaintRequest &request);
bool drawBarBase(const BaseStyle &style, const PaintRequest &request);
bool drawCloseIndicator(const BaseStyle &style, const PaintRequest &request);
bool drawTabShape(const BaseStyle &style, const PaintRequest &request);
bool drawTabLabel(const BaseStyle &style, const PaintRequest &request);

} // namespace TARN::Tabs
