#pragma once

#include <QtWidgets/QWidget>

namespace TARN::Components {

/// Buttons in a row that belong together: a plain group on one ground, or the steps of a workflow,
/// linked with each other.
class ButtonGroupWidget : public QWidget
{
    Q_OBJECT

public:
    enum class Kind { Plain, Workflow };

    ButtonGroupWidget(const QStringList &texts, Kind kind);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void paintGround(QPainter *painter) const;
    void paintLinks(QPainter *painter) const;
    [[nodiscard]] QBrush brush(const QByteArray &name) const;

    Kind m_kind;
};

} // namespace TARN::Components
