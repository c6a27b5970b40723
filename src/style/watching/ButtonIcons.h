#pragma once

class QCommandLinkButton;
class QToolButton;
class QWidget;

namespace TARN {

class BaseStyle;

/// Has \a style tint the icon of the button \a widget whenever it is painted.
void tintOnPaint(BaseStyle &style, QWidget &widget);

/// Gives the clear button of a line edit the theme's icon, in the colour of its state.
void tintClearButton(QToolButton &button);

/// Gives the command link its own icon, in the colour of its state.
void tintCommandLink(QCommandLinkButton &button);

} // namespace TARN
