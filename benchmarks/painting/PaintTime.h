#pragma once

#include <QtWidgets/QWidget>

/// Paints \a widget with all its children, as often as it takes for what is measured to settle, and
/// returns the median of what that took of the processor, in nanoseconds.
double paintTime(QWidget &widget, QWidget::RenderFlags flags);
