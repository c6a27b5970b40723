#pragma once

#include "common_utils/Helpers.h"
#include "style/asking/Requests.h"

class QStyleOptionToolButton;

namespace TARN {
class BaseStyle;
}

/// Tool buttons.
namespace TARN::ToolButtons {

/// Tells whether a button shows the arrow of its menu at the end of its face: it opens a menu, has
/// no separate part for that, and does not show an arrow instead of an icon.
bool showsMenuArrow(const QStyleOptionToolButton &option, const QWidget *widget);

/// Tells whether the panel that \a option describes is the part of a split button that opens the
/// menu.
bool isMenuPart(const QStyleOption &option);
/// Returns the corners at which the panel that \a option describes adjoins the other part of its
/// button.
Helpers::StraightCornerFlags straightCorners(const QStyleOption &option);

bool drawLabel(const BaseStyle &style, const PaintRequest &request);
bool drawToolButton(const BaseStyle &style, const PaintRequest &request);

} // namespace TARN::ToolButtons
