#pragma once

#include "style/asking/Requests.h"

#include <QtCore/QRect>

namespace TARN {
class BaseStyle;
}

/// Scroll bars, among them the thin lines without buttons that "minimized" ones are.
namespace TARN::ScrollBars {

QRect subControlRect(const BaseStyle &style, const SubControlRequest &request);
QSize scrollBarSize(const BaseStyle &style, const ContentsRequest &request);

bool drawCorner(const BaseStyle &style, const PaintRequest &request);
bool drawAddLine(const BaseStyle &style, const PaintRequest &request);
bool drawSubLine(const BaseStyle &style, const PaintRequest &request);
bool drawHandle(const BaseStyle &style, const PaintRequest &request);
bool drawScrollBar(const BaseStyle &style, const PaintRequest &request);

} // namespace TARN::ScrollBars
