#include "components/RangeSlider.h"

#include <QtCore/QVariant>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>

namespace TARN::Components {

namespace {

constexpr int Maximum = 100;
constexpr qreal HandleSize = 14;
constexpr qreal GrooveThickness = 5;

} // namespace

RangeSlider::RangeSlider(int low, int high)
    : m_low(low)
    , m_high(high)
{
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize RangeSlider::sizeHint() const
{
    return {160, 25};
}

qreal RangeSlider::position(int value) const
{
    const qreal part = qreal(value) / Maximum;
    const qreal visualPart = isRightToLeft() ? 1 - part : part;
    return HandleSize / 2 + visualPart * (width() - HandleSize);
}

int RangeSlider::valueAt(qreal position) const
{
    const qreal part = (position - HandleSize / 2) / qMax<qreal>(1, width() - HandleSize);
    return qBound(0, qRound((isRightToLeft() ? 1 - part : part) * Maximum), Maximum);
}

QBrush RangeSlider::brush(const QByteArray &name) const
{
    const QByteArray property = isEnabled() ? name : name + "Disabled";
    return this->property(property.constData()).value<QBrush>();
}

QBrush RangeSlider::handleBrush(const int *value) const
{
    if (isEnabled() && m_pressed == value) {
        return property("SunkenBrush").value<QBrush>();
    }
    return isEnabled() && underMouse() ? property("HoverBrush").value<QBrush>()
                                       : brush("DefaultBrush");
}

void RangeSlider::paintEvent(QPaintEvent * /*event*/)
{
    const qreal radius = property("CornerRadius").toDouble();
    const qreal top = (height() - GrooveThickness) / 2.0;
    const QRectF groove(HandleSize / 2, top, width() - HandleSize, GrooveThickness);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(brush("BorderBrush"), 1));
    painter.setBrush(brush("BackgroundBrush"));
    painter.drawRoundedRect(groove, radius, radius);
    painter.setPen(Qt::NoPen);
    painter.fillRect(QRectF(QPointF(position(m_low), top + 1),
                            QPointF(position(m_high), top + GrooveThickness - 1))
                         .normalized(),
                     brush("RangeBrush"));
    for (const int *value : {&m_low, &m_high}) {
        painter.setBrush(handleBrush(value));
        painter.drawEllipse(QPointF(position(*value), height() / 2.0), HandleSize / 2,
                            HandleSize / 2);
    }
}

int *RangeSlider::handleAt(qreal position)
{
    const qreal toLow = qAbs(position - this->position(m_low));
    const qreal toHigh = qAbs(position - this->position(m_high));
    return toLow < toHigh ? &m_low : &m_high;
}

void RangeSlider::mousePressEvent(QMouseEvent *event)
{
    m_pressed = handleAt(event->localPos().x());
    mouseMoveEvent(event);
}

void RangeSlider::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_pressed) {
        return;
    }
    *m_pressed = valueAt(event->localPos().x());
    // The handles never pass each other.
    if (m_pressed == &m_low) {
        m_low = qMin(m_low, m_high);
    } else {
        m_high = qMax(m_low, m_high);
    }
    update();
}

void RangeSlider::mouseReleaseEvent(QMouseEvent * /*event*/)
{
    m_pressed = nullptr;
    update();
}

} // namespace TARN::Components
