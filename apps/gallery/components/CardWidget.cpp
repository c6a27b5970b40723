#include "components/CardWidget.h"

#include "pages/Literals.h"

#include <QtCore/QVariant>
#include <QtGui/QPainter>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

using namespace TARN::Gallery;

namespace TARN::Components {

namespace {

constexpr qreal CornerRadius = 4;
/// The brush is made for lines and text; as a ground it is a tint.
constexpr qreal GroundOpacity = 0.12;

QLabel *markedLabel(const QString &text, const char *mark, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setProperty(mark, true);
    return label;
}

} // namespace

CardWidget::CardWidget(const QString &title, const QString &subtitle, QWidget *contents,
                       QWidget *footer, bool minimized)
    : m_minimized(minimized)
{
    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(12);
    // The title asks its parent whether the card is minimized.
    auto *titleLabel = markedLabel(title, "CardWidgetBase_Title", this);
    layout->addWidget(titleLabel);
    layout->addWidget(markedLabel(subtitle, "CardWidgetBase_Subtitle", this));
    if (contents) {
        contents->setProperty("CardWidgetBase_Contents", true);
        contents->setVisible(!minimized);
        layout->addWidget(contents);
    }
    if (footer) {
        footer->setProperty("CardWidgetBase_Footer", true);
        footer->setVisible(!minimized);
        layout->addWidget(footer);
    }
    layout->addStretch();
}

void CardWidget::paintEvent(QPaintEvent * /*event*/)
{
    const char *property = isEnabled() ? "BackgroundBrush" : "BackgroundBrushDisabled";
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(GroundOpacity);
    painter.setPen(Qt::NoPen);
    painter.setBrush(this->property(property).value<QBrush>());
    painter.drawRoundedRect(rect(), CornerRadius, CornerRadius);
}

} // namespace TARN::Components
