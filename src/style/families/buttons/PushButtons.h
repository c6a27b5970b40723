#pragma once

#include "style/asking/Requests.h"

#include <QtCore/QRect>
#include <QtGui/QBrush>
#include <QtGui/QPalette>

class QWidget;

namespace TARN {
class BaseStyle;
}

/// Push buttons and command links, and the faces of everything that is a button.
namespace TARN::Buttons {

QSize pushButtonSize(const BaseStyle &style, const ContentsRequest &request);
QSize toolButtonSize(const BaseStyle &style, const ContentsRequest &request);

/// Returns the height of a push button that has the common fields of the option of \a request:
/// inputs are as high as a button with the same text.
int pushButtonHeight(const BaseStyle &style, const ContentsRequest &request);

void polishCommandLink(BaseStyle &style, QWidget &widget);

/// Returns what the text and the icon of a button are painted with: its \a foreground, or the
/// theme's text colour where none was chosen.
QBrush labelBrush(const QBrush &foreground, bool enabled);

/// Returns the palette by which the label of \a option is drawn in \a brush.
QPalette labelPalette(const QStyleOption &option, const QBrush &brush);

/// Draws the focus inside of \a rect, unless the button has none; \a palette is the one that its
/// label is drawn with.
void drawFocus(const BaseStyle &style, const PaintRequest &request, const QPalette &palette,
               const QRect &rect);

/// \name The column at the end of a button's contents that shows that it opens a menu
/// \{
int menuColumnWidth(const BaseStyle &style, const PaintRequest &request);
QRect menuColumn(const QRect &contents, int width, Qt::LayoutDirection direction);
/// Returns what the column leaves of \a contents.
QRect besideMenuColumn(const QRect &contents, int width, Qt::LayoutDirection direction);
/// \}

bool drawDefaultFrame(const BaseStyle &style, const PaintRequest &request);
bool drawPanel(const BaseStyle &style, const PaintRequest &request);
bool drawPushButton(const BaseStyle &style, const PaintRequest &request);
bool drawBevel(const BaseStyle &style, const PaintRequest &request);
bool drawLabel(const BaseStyle &style, const PaintRequest &request);

} // namespace TARN::Buttons
