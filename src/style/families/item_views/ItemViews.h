#pragma once

#include "style/asking/Requests.h"

#include <QtCore/QRect>

class QStyleOptionViewItem;
class QWidget;

namespace TARN {
class BaseStyle;
}

/// Lists, trees and tables.
namespace TARN::ItemViews {

QRect decorationRect(const BaseStyle &style, const SubElementRequest &request);
QRect textRect(const BaseStyle &style, const SubElementRequest &request);
QSize itemSize(const BaseStyle &style, const ContentsRequest &request);

/// Returns the padding of the items of a list, which is asked for once in a process.
int listViewPadding(const BaseStyle &style);

/// Fills the background of the view from the theme, unless the view has a palette of its own.
void polishPalette(BaseStyle &style, QWidget &widget);
/// Tells the view how its items are painted, unless it has a delegate of its own.
void polishItems(BaseStyle &style, QWidget &widget);

/// Tells whether the view marks the item because the mouse is over it.
bool showsHover(const QStyleOptionViewItem &option, const QWidget *widget);

bool drawColumnArrow(const BaseStyle &style, const PaintRequest &request);
bool drawItemPanel(const BaseStyle &style, const PaintRequest &request);
bool drawRow(const BaseStyle &style, const PaintRequest &request);
bool drawColumnGrip(const BaseStyle &style, const PaintRequest &request);
bool drawItem(const BaseStyle &style, const PaintRequest &request);

} // namespace TARN::ItemViews
