#pragma once

#include <QtWidgets/QWidget>

namespace TARN::Components {

/// A slider with two handles, for a range between 0 and 100.
class RangeSlider : public QWidget
{
    Q_OBJECT

public:
    RangeSlider(int low, int high);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    [[nodiscard]] qreal position(int value) const;
    [[nodiscard]] int valueAt(qreal position) const;
    [[nodiscard]] QBrush brush(const QByteArray &name) const;
    [[nodiscard]] QBrush handleBrush(const int *value) const;
    int *handleAt(qreal position);

    int m_low;
    int m_high;
    int *m_pressed = nullptr;
};

} // namespace TARN::Components
