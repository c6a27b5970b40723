#pragma once

#include "style/asking/Requests.h"

#include <QtCore/QRect>

#include <optional>

namespace TARN {

class BaseStyle;

/// \name The tables of what the style places and measures itself
/// Each returns the rule for an element, or null when the base style's answer is to hold.
/// \{
using SubElementRule = QRect (*)(const BaseStyle &style, const SubElementRequest &request);
SubElementRule subElementRule(QStyle::SubElement element);

using SubControlRule = QRect (*)(const BaseStyle &style, const SubControlRequest &request);
SubControlRule subControlRule(QStyle::ComplexControl control);

using ContentsRule = QSize (*)(const BaseStyle &style, const ContentsRequest &request);
ContentsRule contentsRule(QStyle::ContentsType type);
/// \}

/// \name The answers of the base style
/// \{
QRect baseRect(const BaseStyle &style, const SubElementRequest &request);
QRect baseRect(const BaseStyle &style, const SubControlRequest &request);
QSize baseSize(const BaseStyle &style, const ContentsRequest &request);
/// \}

} // namespace TARN
