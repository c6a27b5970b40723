#pragma once

#include "style/asking/Requests.h"

#include <QtCore/QRect>

class QStyleOptionViewItem;
class QWidget;

namespace TARN {
class Polishing;
}

/// Lists, trees and tables.
namespace TARN::ItemViews {

QRect decorationRect(const SubElementRequest &request);
QRect textRect(const SubElementRequest &request);
QSize itemSize(const ContentsRequest &request);

/// The metric by which the padding of the items of a list is asked for.
inline constexpr int listViewPaddingMetric = QStyle::PM_CustomBase + 1;

/// Returns the padding of the items of a list, which \a proxy is asked for once in a process.
int listViewPadding(const QStyle &proxy);

/// Fills the background of the view from the theme, unless the view has a palette of its own.
void polishPalette(Polishing &polishing);
/// Tells the view how its items are painted, unless it has a delegate of its own.
void polishItems(Polishing &polishing);

/// Tells the view, unless it has a delegate of its own, not to show which item has the focus.
void hideFocus(Polishing &polishing);
/// Does so if the view is the list of a combo box, where the focus always is on what is marked.
void hideFocusOfList(Polishing &polishing);

bool drawItemPanel(const PaintRequest &request);
bool drawCompleteItemPanel(const PaintRequest &request);
bool drawRow(const PaintRequest &request);
bool drawCompleteRow(const PaintRequest &request);

} // namespace TARN::ItemViews
