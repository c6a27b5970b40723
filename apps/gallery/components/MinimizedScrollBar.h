#pragma once

#include <QtWidgets/QScrollBar>

namespace TARN::Components {

/// A scroll bar that is a thin line.
class MinimizedScrollBar : public QScrollBar
{
    Q_OBJECT
    // Hides the window state of that name, which every widget has.
    Q_PROPERTY(bool minimized READ isMinimized CONSTANT)

public:
    using QScrollBar::QScrollBar;

    [[nodiscard]] bool isMinimized() const { return true; }
};

} // namespace TARN::Components
