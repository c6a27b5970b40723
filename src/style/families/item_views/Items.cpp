#include "style/families/item_views/Items.h"

#include "catalogue/Names.h"
#include "resources/ThemeColorHelper.h"
#include "resources/kept/KeptValue.h"
#include "style/asking/Classes.h"
#include "style/asking/OptionState.h"
#include "style/asking/Properties.h"
#include "style/drawing/Icons.h"
#include "style/drawing/Shapes.h"
#include "style/families/item_views/ItemViews.h"
#include "style/families/item_views/Selections.h"
#include "style/text/Paragraph.h"

#include <QtGui/QPainter>
#include <QtWidgets/QListView>
#include <QtWidgets/QScrollBar>

namespace TARN::ItemViews {

namespace {

/// Returns how far a scroll bar that lies over the view may reach into it, which is asked for once
/// in a process.
int verticalScrollBarPadding(const QStyle &proxy)
{
    static ProcessKept<int> sVerticalScrollBarPadding;
    return sVerticalScrollBarPadding.value(
        [&proxy] { return proxy.pixelMetric(QStyle::PM_ScrollBarExtent); });
}

/// Tells whether the view shows which of the items have items below them, and this is one.
bool hasChildIndicator(const QStyleOptionViewItem &option, const QWidget *widget)
{
    const auto *list = qobject_cast<const QListView *>(widget);
    // Items that stand side by side are as wide as their texts, with no room for an indicator; and
    // a combo box offers no way to the items below.
    return list && option.index.isValid() && list->viewMode() == QListView::ListMode &&
           !list->isWrapping() && isSet(list, Property::DrawChildIndicatorInListView) &&
           !isA(list, "QComboBoxListView") && option.index.model()->hasChildren(option.index);
}

/// Paints one item.
class ItemPainter
{
public:
    ItemPainter(const QStyleOptionViewItem &option, const PaintRequest &request, Mode mode);

    void paint();

private:
    bool hasCheck() const { return m_option.features & QStyleOptionViewItem::HasCheckIndicator; }
    QRect rectOf(QStyle::SubElement element) const;
    const QBrush &textBrush() const { return itemTextBrush(m_option, m_widget, m_mode); }
    bool staysInside() const;

    void placeChildIndicator();
    void placeIcon();
    void placeText();

    void drawContents() const;
    void drawCheck() const;
    void drawIcon() const;
    void drawText() const;
    void drawEditingFrame() const;
    void drawFocus() const;
    void drawChildIndicator() const;

    const QStyle &m_proxy;
    const QStyleOptionViewItem &m_option;
    QPainter &m_painter;
    const QWidget *m_widget;
    Mode m_mode;
    bool m_isHighlighted;
    QRect m_iconRect;
    QRect m_textRect;
    QPoint m_textCorner;
    std::shared_ptr<const Paragraph> m_text;
    QRect m_childIndicatorRect;
};

ItemPainter::ItemPainter(const QStyleOptionViewItem &option, const PaintRequest &request, Mode mode)
    : m_proxy(request.proxy())
    , m_option(option)
    , m_painter(*request.painter)
    , m_widget(request.widget)
    , m_mode(mode)
    , m_isHighlighted(has(option, QStyle::State_Selected) || showsHover(option, request.widget))
{
    placeChildIndicator();
    placeIcon();
    placeText();
}

void ItemPainter::paint()
{
    m_proxy.drawPrimitive(QStyle::PE_PanelItemViewItem, &m_option, &m_painter, m_widget);
    if (staysInside()) {
        drawContents();
        return;
    }
    m_painter.save();
    m_painter.setClipRect(m_option.rect, Qt::IntersectClip);
    drawContents();
    m_painter.restore();
}

QRect ItemPainter::rectOf(QStyle::SubElement element) const
{
    return m_proxy.subElementRect(element, &m_option, m_widget);
}

/// Tells whether nothing needs to be clipped, which takes as long as painting most of an item.
bool ItemPainter::staysInside() const
{
    return (m_iconRect.isNull() || m_option.rect.contains(m_iconRect)) &&
           (!m_text || QRectF(m_option.rect).contains(m_text->ink().translated(m_textCorner)));
}

void ItemPainter::placeChildIndicator()
{
    if (!hasChildIndicator(m_option, m_widget)) {
        return;
    }
    const QRect &rect = m_option.rect;
    const int extent = m_proxy.pixelMetric(QStyle::PM_SmallIconSize, &m_option, m_widget);
    int right = rect.right() + 1 - listViewPadding(m_proxy);
    const auto &view = static_cast<const QListView &>(*m_widget);
    if (isA(view.verticalScrollBar(), "TARN::Components::MinimizedScrollBar")) {
        right -= verticalScrollBarPadding(m_proxy);
    }
    m_childIndicatorRect = QStyle::visualRect(
        m_option.direction, rect, QRect(right - extent, rect.top(), extent, rect.height()));
}

void ItemPainter::placeIcon()
{
    if (!m_option.icon.isNull()) {
        m_iconRect = rectOf(QStyle::SE_ItemViewItemDecoration);
    }
}

void ItemPainter::placeText()
{
    if (m_option.text.isEmpty()) {
        return;
    }
    m_textRect = rectOf(QStyle::SE_ItemViewItemText);
    if (!m_childIndicatorRect.isNull()) {
        // The text ends before the indicator.
        if (isRightToLeft(m_option)) {
            m_textRect.setLeft(qMax(m_textRect.left(), m_childIndicatorRect.right() + 1));
        } else {
            m_textRect.setRight(qMin(m_textRect.right(), m_childIndicatorRect.left() - 1));
        }
    }
    const int margin = m_proxy.pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, m_widget) + 1;
    const QRect room = m_textRect.adjusted(margin, 0, -margin, 0);
    m_textCorner = room.topLeft();
    m_text = Paragraph::of({m_option.text, m_option.font, room.size(), m_option.displayAlignment,
                            m_option.textElideMode, m_option.direction,
                            m_option.features.testFlag(QStyleOptionViewItem::WrapText)});
}

void ItemPainter::drawContents() const
{
    if (hasCheck()) {
        drawCheck();
    }
    if (!m_iconRect.isNull()) {
        drawIcon();
    }
    if (m_text) {
        drawText();
    }
    if (has(m_option, QStyle::State_HasFocus)) {
        drawFocus();
    }
    if (!m_childIndicatorRect.isNull()) {
        drawChildIndicator();
    }
}

void ItemPainter::drawCheck() const
{
    QStyleOptionViewItem check(m_option);
    check.rect = rectOf(QStyle::SE_ItemViewItemCheckIndicator);
    check.state &= ~QStyle::State_HasFocus;
    switch (m_option.checkState) {
    case Qt::Unchecked:
        check.state |= QStyle::State_Off;
        break;
    case Qt::PartiallyChecked:
        check.state |= QStyle::State_NoChange;
        break;
    case Qt::Checked:
        check.state |= QStyle::State_On;
        break;
    }
    m_proxy.drawPrimitive(QStyle::PE_IndicatorItemViewItemCheck, &check, &m_painter, m_widget);
}

void ItemPainter::drawIcon() const
{
    QIcon icon = m_option.icon;
    if (isA(m_widget, "QComboBoxListView")) {
        // On a highlighted entry the icon has the colour of the text, to be seen as well.
        icon = ThemeColorHelper::getModifiedIconWithForegroundBrush(
            icon, m_isHighlighted ? textBrush()
                                  : themeBrush(BrushName::ForegroundBrush, isEnabled(m_option)));
    }
    QIcon::Mode mode = QIcon::Normal;
    if (!isEnabled(m_option)) {
        mode = QIcon::Disabled;
    } else if (m_isHighlighted) {
        mode = QIcon::Selected;
    }
    icon.paint(&m_painter, m_iconRect, m_option.decorationAlignment, mode,
               has(m_option, QStyle::State_Open) ? QIcon::On : QIcon::Off);
}

void ItemPainter::drawText() const
{
    if (has(m_option, QStyle::State_Editing)) {
        drawEditingFrame();
    } else {
        m_painter.setPen(outlinePen(textBrush()));
    }
    m_text->draw(m_painter, m_textCorner);
}

/// Frames the text; what is edited is not shown as selected.
void ItemPainter::drawEditingFrame() const
{
    m_painter.setPen(outlinePen(plainTextBrush(m_option)));
    m_painter.setBrush(Qt::NoBrush);
    m_painter.drawRect(m_textRect.adjusted(0, 0, -1, -1));
}

void ItemPainter::drawFocus() const
{
    QStyleOptionFocusRect focus;
    focus.QStyleOption::operator=(m_option);
    focus.rect = rectOf(QStyle::SE_ItemViewItemFocusRect);
    focus.state |= QStyle::State_KeyboardFocusChange | QStyle::State_Item;
    focus.backgroundColor = m_option.palette.color(
        isEnabled(m_option) ? QPalette::Normal : QPalette::Disabled,
        has(m_option, QStyle::State_Selected) ? QPalette::Highlight : QPalette::Window);
    if (m_mode == Mode::Complete && m_isHighlighted) {
        focus.palette.setBrush(QPalette::Text, textBrush());
    }
    m_proxy.drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &m_painter, m_widget);
}

void ItemPainter::drawChildIndicator() const
{
    drawTintedIcon(m_painter, m_childIndicatorRect,
                   keptIcon(isRightToLeft(m_option) ? "chevron.left" : "chevron.right"),
                   textBrush());
}

bool paintItem(const PaintRequest &request, Mode mode)
{
    const auto *option = qstyleoption_cast<const QStyleOptionViewItem *>(request.option);
    if (!option) {
        return false;
    }
    if (!option->rect.isEmpty()) {
        ItemPainter(*option, request, mode).paint();
    }
    return true;
}

} // namespace

bool drawItem(const PaintRequest &request)
{
    return paintItem(request, Mode::Default);
}

bool drawCompleteItem(const PaintRequest &request)
{
    return paintItem(request, Mode::Complete);
}

} // namespace TARN::ItemViews
