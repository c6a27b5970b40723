#pragma once

#include "style/asking/Mode.h"
#include "style/asking/Requests.h"

#include <QtCore/QRect>

namespace TARN {

/// \name The tables of what the style places and measures itself
/// Each returns the rule for an element, or null when the base style's answer is to hold.
/// \{
using SubElementRule = QRect (*)(const SubElementRequest &request);
SubElementRule subElementRule(QStyle::SubElement element, Mode mode);

using SubControlRule = QRect (*)(const SubControlRequest &request);
SubControlRule subControlRule(QStyle::ComplexControl control, Mode mode);

using ContentsRule = QSize (*)(const ContentsRequest &request);
ContentsRule contentsRule(QStyle::ContentsType type, Mode mode);
/// \}

} // namespace TARN
