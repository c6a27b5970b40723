#pragma once

#include "style/Requests.h"

#include <QtCore/QRect>

namespace TARN {
class BaseStyle;
}

/// Scroll bars, among them the thin lines without buttons that "minimized" ones are.
namespace TARN::ScrollBars {

QRect subControlRect(const BaseStyle &style, const SubControlRequest &request);
QSize scrollBarSize(const BaseStyle &style, const ContentsRequest &request);

} // namespace TARN::ScrollBars
