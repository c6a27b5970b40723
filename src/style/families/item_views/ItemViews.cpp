#include "style/families/item_views/ItemViews.h"

#include "catalogue/Names.h"
#include "resources/kept/KeptValue.h"
#include "style/asking/Classes.h"
#include "style/asking/OptionState.h"
#include "style/asking/Properties.h"
#include "style/families/item_views/Selections.h"
#include "style/polishing/Polishing.h"

#include <QtCore/QPointer>
#include <QtGui/QPainter>
#include <QtWidgets/QListView>

namespace TARN::ItemViews {

namespace {

constexpr int leastItemHeight = 26;
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

/// The background of an item or a row.
class Panel
{
public:
    Panel(const QStyleOptionViewItem &option, const PaintRequest &request, Mode mode)
        : m_option(option)
        , m_painter(*request.painter)
        , m_widget(request.widget)
        , m_enabled(isEnabled(option))
        , m_mode(mode)
    {
    }

    void fillHovered() const { fill(m_option.rect, hoverBrush(m_option, m_mode)); }

    void fillSelected(const QRect &rect) const
    {
        fill(rect, selectionBrush(m_option, m_widget, m_mode));
    }

    void fillAtRest() const
    {
        if (m_option.features.testFlag(QStyleOptionViewItem::Alternate) ||
            !isSet(m_widget, Property::CustomItemViewPalette)) {
            fill(m_option.rect, itemBrush(m_option, m_widget, m_mode));
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
    void fill(const QRect &rect, const QBrush &brush) const
    {
        // The painter would turn a rectangle that is inside out.
        if (!rect.isEmpty()) {
            m_painter.fillRect(rect, brush);
        }
    }

    const QStyleOptionViewItem &m_option;
    QPainter &m_painter;
    const QWidget *m_widget;
    bool m_enabled;
    Mode m_mode;
};

bool paintItemPanel(const PaintRequest &request, Mode mode)
{
    const auto *option = qstyleoption_cast<const QStyleOptionViewItem *>(request.option);
    if (!option) {
        return false;
    }
    const Panel panel(*option, request, mode);
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

bool paintRow(const PaintRequest &request, Mode mode)
{
    const auto *option = qstyleoption_cast<const QStyleOptionViewItem *>(request.option);
    if (!option) {
        return false;
    }
    if (isA(request.widget, "TARN::PeriodicTable::PeriodicTableView")) {
        // The elements stand apart on the view's own background, in which rows mean nothing.
        return true;
    }
    const Panel panel(*option, request, mode);
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
}

void hideFocusOfList(Polishing &polishing)
{
    if (isInComboBoxPopup(&polishing.widget())) {
        hideFocus(polishing);
    }
}

void hideFocus(Polishing &polishing)
{
    if (!isSet(&polishing.widget(), Property::CustomItemDelegate)) {
        polishing.setProperty(Property::HideFocusRect, true);
    }
}

bool drawItemPanel(const PaintRequest &request)
{
    return paintItemPanel(request, Mode::Default);
}

bool drawCompleteItemPanel(const PaintRequest &request)
{
    return paintItemPanel(request, Mode::Complete);
}

bool drawRow(const PaintRequest &request)
{
    return paintRow(request, Mode::Default);
}

bool drawCompleteRow(const PaintRequest &request)
{
    return paintRow(request, Mode::Complete);
}

} // namespace TARN::ItemViews
