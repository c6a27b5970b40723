#pragma once

#include "style/asking/Requests.h"

/// The faces of tabs, their close buttons, and the frames of their pages.
namespace TARN::Tabs {

bool drawWidgetFrame(const PaintRequest &request);
bool drawBarBase(const PaintRequest &request);
bool drawCloseIndicator(const PaintRequest &request);
bool drawTabShape(const PaintRequest &request);

} // namespace TARN::Tabs
