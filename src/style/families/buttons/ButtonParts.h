#pragma once

#include "style/asking/Requests.h"

#include <QtCore/QRect>
#include <QtGui/QPalette>

/// What push buttons and tool buttons have in common.
namespace TARN::Buttons {

/// Draws the focus inside of \a rect, unless the button has none; \a palette is the one that its
/// label is drawn with.
void drawFocus(const PaintRequest &request, const QPalette &palette, const QRect &rect);

/// \name The column at the end of a button's contents that shows that it opens a menu
/// \{
int menuColumnWidth(const PaintRequest &request);
QRect menuColumn(const QRect &contents, int width, Qt::LayoutDirection direction);
/// Returns what the column leaves of \a contents.
QRect besideMenuColumn(const QRect &contents, int width, Qt::LayoutDirection direction);
/// \}

} // namespace TARN::Buttons
