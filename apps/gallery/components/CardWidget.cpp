#include "components/CardWidget.h"

#include "samples/Literals.h"

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

/// A part of a card, which adjoins the others. It knows whether the card is minimized: its title
/// asks.
class CardPart : public QWidget
{
    Q_OBJECT
    // Hides the window state of that name, which every widget has.
    Q_PROPERTY(bool minimized MEMBER m_minimized)

public:
    CardPart(const char *mark, bool minimized)
        : m_minimized(minimized)
        , m_layout(new QVBoxLayout(this))
    {
        setProperty(mark, true);
    }

    void add(QWidget *widget) { m_layout->addWidget(widget); }
    void addLabel(const QString &text, const char *mark)
    {
        auto *label = new QLabel(text, this);
        label->setProperty(mark, true);
        add(label);
    }

private:
    bool m_minimized;
    QVBoxLayout *m_layout;
};

CardPart *partWith(const char *mark, QWidget *widget, bool minimized)
{
    auto *part = new CardPart(mark, minimized);
    part->add(widget);
    if (minimized) {
        // Shown, it would be a window until it is part of the card, with the margins of one.
        part->hide();
    }
    return part;
}

} // namespace

CardWidget::CardWidget(const QString &title, const QString &subtitle, QWidget *contents,
                       QWidget *footer, bool minimized)
    : m_minimized(minimized)
{
    setProperty("headerVisible", true);
    setProperty("footerVisible", footer && !minimized);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    auto *header = new CardPart("CardWidgetBase_Header", minimized);
    header->addLabel(title, "CardWidgetBase_Title");
    header->addLabel(subtitle, "CardWidgetBase_Subtitle");
    layout->addWidget(header);
    if (contents) {
        layout->addWidget(partWith("CardWidgetBase_Contents", contents, minimized), 1);
    }
    if (footer) {
        layout->addWidget(partWith("CardWidgetBase_Footer", footer, minimized));
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
    // A minimized card may be given more room than its header takes.
    painter.drawRoundedRect(childrenRect(), CornerRadius, CornerRadius);
}

} // namespace TARN::Components

#include "CardWidget.moc"
