#pragma once

#include <QtGui/QImage>

class QWidget;

/// Returns a picture of \a widget, in the pixels of its screen, on which no text was drawn.
QImage textlessPicture(QWidget &widget);
