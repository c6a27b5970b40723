#pragma once

#include <memory>

class QWidget;

/// Returns a window of 60 widgets of all kinds that forms are made of, not counting the parts that
/// these have.
std::unique_ptr<QWidget> makeFormWindow();

/// Returns a window that is filled by trees and tables.
std::unique_ptr<QWidget> makeDataWindow();
