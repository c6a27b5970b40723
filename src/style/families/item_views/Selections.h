#pragma once

#include "style/asking/Mode.h"

#include <QtGui/QBrush>

class QStyleOptionViewItem;
class QWidget;

namespace TARN {
class Polishing;
}

/// What the items that are selected, or under the mouse, are told apart by. By default these are
/// the theme's brushes; in the complete mode they are roles of the view's palette, which delegates
/// paint with as well, so that no row is in two colours.
namespace TARN::ItemViews {

/// Gives the view the theme's colours, as far as no program has given it others.
void polishColors(Polishing &polishing);

/// Tells whether \a widget is the list that a combo box has opened; it may be null.
bool isInComboBoxPopup(const QWidget *widget);

/// Returns the ground of an item that is neither selected nor marked.
const QBrush &itemBrush(const QStyleOptionViewItem &option, const QWidget *widget, Mode mode);

/// Tells whether the view marks the item because the mouse is over it.
bool showsHover(const QStyleOptionViewItem &option, const QWidget *widget);

/// Returns the ground of a selected item.
const QBrush &selectionBrush(const QStyleOptionViewItem &option, const QWidget *widget, Mode mode);

/// Returns the ground of an item that is marked because the mouse is over it.
const QBrush &hoverBrush(const QStyleOptionViewItem &option, Mode mode);

/// Returns what the text and the glyphs of an item are drawn in, whatever its ground is.
const QBrush &itemTextBrush(const QStyleOptionViewItem &option, const QWidget *widget, Mode mode);

/// Returns the same for a text that is neither selected nor marked.
const QBrush &plainTextBrush(const QStyleOptionViewItem &option);

} // namespace TARN::ItemViews
