#include "style/families/item_views/ItemViews.h"

#include "catalogue/Names.h"
#include "resources/kept/KeptValue.h"
#include "style/asking/Classes.h"
#include "style/asking/OptionState.h"
#include "style/asking/Properties.h"
#include "style/drawing/Grips.h"
#include "style/polishing/Polishing.h"

#include <QtCore/QPointer>
#include <QtGui/QPainter>
#include <QtWidgets/QListView>

namespace TARN::ItemViews {

namespace {

constexpr int leastItemHeight = 26;
constexpr int gripLength = 7 * gripStep;
constexpr char cascadingList[] = "TARN::Components::CascadingListViewPanel";

bool isList(const QWidget *widget)
{
    const auto *list = qobject_cast<const QListView *>(widget);
    return list && list->viewMode() == QListView::ListMode;
}

/// Tells whether the text of an item does not change the place of anything: it gets all the room
/// that is left beside the check box and the icon.
bool fillsTheRest(const QStyleOptionViewItem &option)
{
    return option.showDecorationSelected &&
           (option.decorationPosition == QStyleOptionViewItem::Left ||
            option.decorationPosition == QStyleOptionViewItem::Right);
}

/// Returns the base style's rectangle, for which it lays the text out to measure it. It is spared
/// that for texts that need no measure.
QRect itemRect(const SubElementRequest &request)
{
    const auto *option = qstyleoption_cast<const QStyleOptionViewItem *>(request.option);
    if (!option || option->text.isEmpty() || !fillsTheRest(*option)) {
        return request.baseRect();
    }
    QStyleOptionViewItem textless(*option);
    textless.text.clear();
    textless.features &= ~QStyleOptionViewItem::HasDisplay;
    return SubElementRequest{request.style, request.element, &textless, request.widget}.baseRect();
}

bool isInComboBoxPopup(const QWidget *widget)
{
    return widget && isA(widget->parent(), "QComboBoxPrivateContainer");
}

/// The background of an item or a row.
class Panel
{
public:
    Panel(const QStyleOptionViewItem &option, const PaintRequest &request)
        : m_option(option)
        , m_painter(*request.painter)
        , m_widget(request.widget)
        , m_enabled(isEnabled(option))
    {
    }

    void fillHovered() const { fill(m_option.rect, BrushName::MainBrush); }

    void fillSelected(const QRect &rect) const
    {
        // Keys that are pressed while a pop-up is open go to it, wherever the focus is.
        const bool hasFocus = m_widget && (m_widget->hasFocus() || isInComboBoxPopup(m_widget));
        fill(rect, hasFocus ? BrushName::MainBrush : BrushName::MainSubLevel1Brush);
    }

    void fillAtRest() const
    {
        if (m_option.features.testFlag(QStyleOptionViewItem::Alternate)) {
            fill(m_option.rect, BrushName::ItemViewAlternateBackgroundBrush);
        } else if (!isSet(m_widget, Property::CustomItemViewPalette)) {
            fill(m_option.rect, BrushName::ItemViewBackgroundBrush);
        }
    }

    /// Fills the item with the brush that its model asks for, if there is one.
    void fillByModel() const
    {
        if (m_option.backgroundBrush.style() != Qt::NoBrush && !m_option.rect.isEmpty()) {
            m_painter.setBrushOrigin(m_option.rect.topLeft());
            m_painter.fillRect(m_option.rect, m_option.backgroundBrush);
        }
    }

    void drawSeparator() const
    {
        // The entries of a pop-up are a menu's: what separates them is an entry of its own.
        if (m_option.rect.isEmpty() || !isSet(m_widget, Property::DrawItemsSeparators) ||
            isSet(m_widget, Property::FlatView) || isInComboBoxPopup(m_widget)) {
            return;
        }
        const QRect &rect = m_option.rect;
        m_painter.fillRect(QRect(rect.left(), rect.bottom(), rect.width(), 1),
                           themeColor(ColorName::BackgroundColor, m_enabled));
    }

private:
    void fill(const QRect &rect, BrushName brush) const
    {
        // The painter would turn a rectangle that is inside out.
        if (!rect.isEmpty()) {
            m_painter.fillRect(rect, themeBrush(brush, m_enabled));
        }
    }

    const QStyleOptionViewItem &m_option;
    QPainter &m_painter;
    const QWidget *m_widget;
    bool m_enabled;
};

} // namespace

int listViewPadding(const QStyle &proxy)
{
    static ProcessKept<int> padding;
    return padding.value([&proxy] {
        return proxy.pixelMetric(static_cast<QStyle::PixelMetric>(listViewPaddingMetric));
    });
}

QRect decorationRect(const SubElementRequest &request)
{
    const QRect rect = itemRect(request);
    if (!rect.isValid() || !isList(request.widget) || !isA(request.widget, cascadingList)) {
        return rect;
    }
    return rect.translated(listViewPadding(request.proxy()), 0);
}

QRect textRect(const SubElementRequest &request)
{
    const QRect rect = itemRect(request);
    if (!rect.isValid() || !isList(request.widget)) {
        return rect;
    }
    if (isA(request.widget, "QComboBoxListView")) {
        return rect.translated(-1, 0);
    }
    if (isA(request.widget, cascadingList)) {
        const int padding = listViewPadding(request.proxy());
        return rect.adjusted(padding, 0, -padding, 0);
    }
    return rect;
}

QSize itemSize(const ContentsRequest &request)
{
    return request.baseSize().expandedTo(QSize(0, leastItemHeight));
}

void polishPalette(Polishing &polishing)
{
    if (!isSet(&polishing.widget(), Property::CustomItemViewPalette)) {
        polishing.setBrushes(QPalette::Base, themeBrush(BrushName::ItemViewBackgroundBrush, true),
                             themeBrush(BrushName::ItemViewBackgroundBrush, false));
    }
}

/// Has the area of the items, which follows the view, track the mouse as before when the view
/// leaves the style.
void keepTrackingOfItems(Polishing &polishing)
{
    if (const auto *view = qobject_cast<QAbstractItemView *>(&polishing.widget())) {
        const QPointer<QWidget> items = view->viewport();
        polishing.addUndo([items, former = items->hasMouseTracking()] {
            if (items) {
                items->setMouseTracking(former);
            }
        });
    }
}

void polishItems(Polishing &polishing)
{
    const QWidget &widget = polishing.widget();
    if (isSet(&widget, Property::CustomItemDelegate)) {
        return;
    }
    if (!isA(&widget, "QTreeView")) {
        polishing.setProperty(Property::HighlightItemsOnMouseHover, true);
        keepTrackingOfItems(polishing);
        polishing.setAttribute(Qt::WA_MouseTracking);
    }
    if (!isA(&widget, "QTableView")) {
        polishing.setProperty(Property::DrawItemsSeparators, true);
    }
    if (isA(&widget, "QListView")) {
        polishing.setProperty(Property::DrawChildIndicatorInListView, true);
    }
    polishing.setProperty(Property::HideFocusRect, true);
}

bool showsHover(const QStyleOptionViewItem &option, const QWidget *widget)
{
    return isHovered(option) && isSet(widget, Property::HighlightItemsOnMouseHover);
}

bool drawColumnArrow(const PaintRequest &request)
{
    const auto *option = qstyleoption_cast<const QStyleOptionViewItem *>(request.option);
    if (!option) {
        return false;
    }
    QStyleOptionViewItem arrow(*option);
    if (isEnabled(arrow) && has(arrow, QStyle::State_Selected)) {
        arrow.palette.setBrush(QPalette::WindowText,
                               arrow.palette.brush(QPalette::HighlightedText));
    }
    request.style.drawPrimitive(isRightToLeft(arrow) ? QStyle::PE_IndicatorArrowLeft
                                                     : QStyle::PE_IndicatorArrowRight,
                                &arrow, request.painter, request.widget);
    return true;
}

bool drawItemPanel(const PaintRequest &request)
{
    const auto *option = qstyleoption_cast<const QStyleOptionViewItem *>(request.option);
    if (!option) {
        return false;
    }
    const Panel panel(*option, request);
    if (showsHover(*option, request.widget)) {
        panel.fillHovered();
        return true;
    }
    const bool isSelected = has(*option, QStyle::State_Selected);
    if (isSelected && option->showDecorationSelected) {
        panel.fillSelected(option->rect);
    } else {
        panel.fillAtRest();
        panel.fillByModel();
        if (isSelected) {
            // As everywhere in the toolkit, such a selection covers the text alone.
            panel.fillSelected(request.proxy().subElementRect(QStyle::SE_ItemViewItemText, option,
                                                              request.widget));
        }
    }
    panel.drawSeparator();
    return true;
}

bool drawRow(const PaintRequest &request)
{
    const auto *option = qstyleoption_cast<const QStyleOptionViewItem *>(request.option);
    if (!option) {
        return false;
    }
    if (isA(request.widget, "TARN::PeriodicTable::PeriodicTableView")) {
        // The elements stand apart on the view's own background, in which rows mean nothing.
        return true;
    }
    const Panel panel(*option, request);
    if (showsHover(*option, request.widget)) {
        panel.fillHovered();
        return true;
    }
    if (has(*option, QStyle::State_Selected) &&
        request.proxy().styleHint(QStyle::SH_ItemView_ShowDecorationSelected, option,
                                  request.widget) != 0) {
        panel.fillSelected(option->rect);
    } else {
        panel.fillAtRest();
    }
    panel.drawSeparator();
    return true;
}

bool drawColumnGrip(const PaintRequest &request)
{
    const QRect &rect = request.option->rect;
    if (rect.isEmpty()) {
        return true;
    }
    // Seven dots are seen as a grip; more of them, as a line.
    const QPoint center = rect.center();
    const int from = qMax(center.y() - gripLength / 2, rect.top());
    const int to = qMin(from + gripLength, rect.bottom());
    drawGrips(*request.painter, Qt::Vertical, from, to, center.x());
    return true;
}

} // namespace TARN::ItemViews
