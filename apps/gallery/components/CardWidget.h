#pragma once

#include <QtWidgets/QFrame>

namespace TARN::Components {

/// A card with header, contents and footer. A minimized card shows its header only.
class CardWidget : public QFrame
{
    Q_OBJECT
    // Hides the window state of that name, which every widget has.
    Q_PROPERTY(bool minimized READ isMinimized CONSTANT)

public:
    /// Takes \a contents and \a footer over; either may be null.
    CardWidget(const QString &title, const QString &subtitle, QWidget *contents, QWidget *footer,
               bool minimized = false);

    [[nodiscard]] bool isMinimized() const { return m_minimized; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    bool m_minimized;
};

} // namespace TARN::Components
