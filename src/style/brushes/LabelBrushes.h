#pragma once

#include <QtGui/QBrush>
#include <QtGui/QPalette>

class QStyleOption;
class QStyleOptionButton;
class QWidget;

/// What the texts and icons of buttons are painted with.
namespace TARN {

/// Returns what the text and the icon of a button are painted with: its \a foreground, or the
/// theme's text colour where none was chosen.
QBrush labelBrush(const QBrush &foreground, bool enabled);

/// Returns the palette by which the label of \a option is drawn in \a brush.
QPalette labelPalette(const QStyleOption &option, const QBrush &brush);

/// Sets \a brush, unless it is none, as the text of the button that \a option describes and tints
/// the option's icon with it. The option is a QStyleOptionButton or a QStyleOptionToolButton.
template <typename ButtonOption>
void useForeground(ButtonOption &option, const QBrush &brush);

/// Returns \a option, which must be a ButtonOption, prepared for painting its label: its palette
/// has the foreground brush of the button, its icon the tint of that brush. It is the caller's
/// option itself that is changed, so that whatever it paints next matches the label.
template <typename ButtonOption>
const ButtonOption *preparedForLabel(const QStyleOption *option, const QWidget *widget);

/// Tells whether \a option has been prepared so with \a brush, its icon included.
bool isPreparedForLabel(const QStyleOptionButton &option, const QBrush &brush);

} // namespace TARN
