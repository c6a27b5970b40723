#pragma once

#include "style/asking/Requests.h"

#include <QtGui/QColor>

/// The grounds and outlines of menus.
namespace TARN::Menus {

/// Tells whether the menu is enabled: a disabled entry lies on the same surface as the others.
bool isSurfaceEnabled(const PaintRequest &request);

QColor outlineColor(const QStyleOption &option);

/// Tells whether \a option is that of the entry which a key or the mouse has reached.
bool isHighlighted(const QStyleOption &option);

/// Returns the brush of the texts and marks of an entry.
const QBrush &textBrush(const QStyleOption &option);

/// Draws what the part of a menu that is asked for covers of the menu's outline: the parts reach to
/// the edge, and without it a menu could not be told from the one below.
void drawCoveredOutline(const PaintRequest &request);

bool drawPanel(const PaintRequest &request);
/// Draws the outline of a menu alone.
bool drawFrame(const PaintRequest &request);

} // namespace TARN::Menus
