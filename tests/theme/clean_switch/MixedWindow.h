#pragma once

#include <QtGui/QImage>
#include <QtWidgets/QWidget>

#include <memory>

/// A window of widgets of every kind, in several states, whose looks depend on nothing but the
/// theme.
std::unique_ptr<QWidget> createMixedWindow();

/// Returns how \a window looks now.
QImage render(QWidget &window);
