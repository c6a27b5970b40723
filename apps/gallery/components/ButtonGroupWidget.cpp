#include "components/ButtonGroupWidget.h"

#include <QtCore/QVariant>
#include <QtGui/QPainter>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QPushButton>

namespace TARN::Components {

namespace {

constexpr int LinkLength = 24;

} // namespace

ButtonGroupWidget::ButtonGroupWidget(const QStringList &texts, Kind kind)
    : m_kind(kind)
{
    const bool isWorkflow = kind == Kind::Workflow;
    setProperty("ButtonGroupWidget_Container", true);
    setProperty("ButtonGroupWidget_Workflow", isWorkflow);
    setProperty("ButtonGroupWidget_Exclusive", true);
    setProperty("ButtonGroupWidget_VisibleCount", texts.size());
    setProperty("orientation", int(Qt::Horizontal));
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(isWorkflow ? LinkLength : 0);
    auto *group = new QButtonGroup(this);
    for (const QString &text : texts) {
        auto *button = new QPushButton(text);
        button->setProperty("Button_VisibleIndex", group->buttons().size());
        button->setCheckable(true);
        group->addButton(button);
        layout->addWidget(button);
    }
    group->buttons().constFirst()->setChecked(true);
}

QBrush ButtonGroupWidget::brush(const QByteArray &name) const
{
    const QByteArray property = isEnabled() ? name : name + "Disabled";
    return this->property(property.constData()).value<QBrush>();
}

void ButtonGroupWidget::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_kind == Kind::Plain) {
        paintGround(&painter);
    } else {
        paintLinks(&painter);
    }
}

void ButtonGroupWidget::paintGround(QPainter *painter) const
{
    const qreal radius = property("CornerRadius").toDouble();
    painter->setPen(QPen(brush("BorderBrush"), 1));
    painter->setBrush(brush("BackgroundBrush"));
    painter->drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
}

void ButtonGroupWidget::paintLinks(QPainter *painter) const
{
    painter->setPen(QPen(brush("WorkflowLinkBrush"), 2));
    const QList<QPushButton *> buttons = findChildren<QPushButton *>();
    for (int i = 1; i < buttons.size(); ++i) {
        // Right to left, the former button stands on the other side.
        const bool isAfter = buttons.at(i)->x() > buttons.at(i - 1)->x();
        const QRect left = buttons.at(isAfter ? i - 1 : i)->geometry();
        const QRect right = buttons.at(isAfter ? i : i - 1)->geometry();
        painter->drawLine(left.right() + 1, left.center().y() + 1, right.left(),
                          right.center().y() + 1);
    }
}

} // namespace TARN::Components
