#pragma once

class QAbstractButton;
class QObject;
class QToolButton;
class QWidget;

namespace TARN {

/// Has \a filter, which hands its events to watch(), tint the icon of the button \a widget whenever
/// it is painted.
void tintOnPaint(QObject &filter, QWidget &widget);

/// Gives the clear button of a line edit the theme's icon, in the colour of its state.
void tintClearButton(QToolButton &button);

/// Gives the command link its own icon, in the colour of its state.
void tintCommandLink(QAbstractButton &button);

} // namespace TARN
