#pragma once

#include "style/asking/Requests.h"

#include <QtGui/QColor>

/// The grounds and outlines of menus.
namespace TARN::Menus {

/// Tells whether the menu is enabled: a disabled entry lies on the same surface as the others.
bool isSurfaceEnabled(const PaintRequest &request);

QColor outlineColor(const QStyleOption &option);

bool drawPanel(const PaintRequest &request);

} // namespace TARN::Menus
