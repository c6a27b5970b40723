#pragma once

class QWidget;

namespace TARN::Gallery {

/// Waits until \a window, which is shown, has laid itself out and lists its folders, and stops its
/// animations midway, so that a picture of it comes out the same on every run.
void settle(const QWidget &window);

} // namespace TARN::Gallery
