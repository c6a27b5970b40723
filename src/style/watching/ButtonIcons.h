#pragma once

class QAbstractButton;
class QToolButton;

namespace TARN {

class Polishing;

/// Has the style, which hands its events to watch(), tint the icon of the button whenever it is
/// painted.
void tintOnPaint(Polishing &polishing);

/// Gives the clear button of a line edit the theme's icon, in the colour of its state.
void tintClearButton(QToolButton &button);

/// Gives the command link its own icon, in the colour of its state.
void tintCommandLink(QAbstractButton &button);

} // namespace TARN
