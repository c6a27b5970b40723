#include "style/families/ItemViews.h"

#include "resources/ProcessCache.h"
#include "style/BaseStyle.h"
#include "style/Geometry.h"
#include "style/Properties.h"
#include "style/catalogue/Names.h"

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

} // namespace

int listViewPadding(const BaseStyle &style)
{
    static ProcessKept<int> padding;
    return padding.value([&style] {
        return style.proxy()->pixelMetric(
            static_cast<QStyle::PixelMetric>(BaseStyle::TARN_PM_ListViewPadding));
    });
}

QRect decorationRect(const BaseStyle &style, const SubElementRequest &request)
{
    const QRect rect = baseRect(style, request);
    if (!rect.isValid() || !isList(request.widget) || !isA(request.widget, cascadingList)) {
        return rect;
    }
    return rect.translated(listViewPadding(style), 0);
}

QRect textRect(const BaseStyle &style, const SubElementRequest &request)
{
    const QRect rect = baseRect(style, request);
    if (!rect.isValid() || !isList(request.widget)) {
        return rect;
    }
    if (isA(request.widget, "QComboBoxListView")) {
        return rect.translated(-1, 0);
    }
    if (isA(request.widget, cascadingList)) {
        const int padding = listViewPadding(style);
        return rect.adjusted(padding, 0, -padding, 0);
    }
    return rect;
}

QSize itemSize(const BaseStyle &style, const ContentsRequest &request)
{
    return baseSize(style, request).expandedTo(QSize(0, leastItemHeight));
}

void polishPalette(BaseStyle & /*style*/, QWidget &widget)
{
    if (isSet(&widget, "customItemViewPalette")) {
        return;
    }
    QPalette palette = widget.palette();
    palette.setBrush(QPalette::All, QPalette::Base,
                     themeBrush(BrushName::ItemViewBackgroundBrush, true));
    palette.setBrush(QPalette::Disabled, QPalette::Base,
                     themeBrush(BrushName::ItemViewBackgroundBrush, false));
    widget.setPalette(palette);
}

void polishItems(BaseStyle & /*style*/, QWidget &widget)
{
    if (isSet(&widget, "customItemDelegate")) {
        return;
    }
    if (!isA(&widget, "QTreeView")) {
        widget.setProperty("highlightItemsOnMouseHover", true);
        widget.setAttribute(Qt::WA_MouseTracking);
    }
    if (!isA(&widget, "QTableView")) {
        widget.setProperty("drawItemsSeparators", true);
    }
    if (isA(&widget, "QListView")) {
        widget.setProperty("drawChildIndicatorInListView", true);
    }
    widget.setProperty("hideFocusRect", true);
}

bool drawColumnArrow(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

bool drawItemPanel(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

bool drawRow(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

bool drawColumnGrip(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

bool drawItem(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

} // namespace TARN::ItemViews
