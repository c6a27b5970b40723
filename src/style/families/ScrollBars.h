#pragma once

#include "style/asking/Requests.h"

#include <QtCore/QRect>

/// Scroll bars, among them the thin lines without buttons that "minimized" ones are.
namespace TARN::ScrollBars {

QRect subControlRect(const SubControlRequest &request);
QSize scrollBarSize(const ContentsRequest &request);

bool drawCorner(const PaintRequest &request);
/// Draws what the handle leaves of the groove.
bool drawPage(const PaintRequest &request);
bool drawFirst(const PaintRequest &request);
bool drawLast(const PaintRequest &request);
bool drawAddLine(const PaintRequest &request);
bool drawSubLine(const PaintRequest &request);
bool drawHandle(const PaintRequest &request);
bool drawScrollBar(const PaintRequest &request);

} // namespace TARN::ScrollBars
