#include "style/families/tabs/TabSizes.h"

#include "resources/ThemeResources.h"
#include "resources/kept/KeptValue.h"
#include "style/asking/Backgrounds.h"
#include "style/asking/Properties.h"
#include "style/families/tabs/TabSides.h"
#include "style/polishing/Polishing.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QTabWidget>

namespace TARN::Tabs {

namespace {

constexpr int smallHeight = 16;
constexpr int mediumHeight = 39;
constexpr int largeHeight = 50;

/// How much wider than the style knows the bold text of a selected tab is.
constexpr int boldGrowth = 2;

/// Returns the height that the base style gave the first tab that was ever measured.
int baseHeight(const QSize &size)
{
    static ProcessKept<int> height;
    return height.value([&size] { return size.height(); });
}

int applicationTabHeight(int base)
{
    if (isSet(qApp, Property::AppSmallTabSize)) {
        return smallHeight;
    }
    if (isSet(qApp, Property::AppBaseTabSize)) {
        return base;
    }
    return isSet(qApp, Property::AppLargeTabSize) ? largeHeight : mediumHeight;
}

int tabHeight(const QWidget &tabBar, int base)
{
    if (isSet(&tabBar, Property::LargeTabSize)) {
        return largeHeight;
    }
    if (isSet(&tabBar, Property::SmallTabSize)) {
        return smallHeight;
    }
    return isSet(&tabBar, Property::BaseTabSize) ? base : applicationTabHeight(base);
}

QString applicationFontSize()
{
    if (isSet(qApp, Property::AppSmallTabSize)) {
        return QStringLiteral("small");
    }
    if (isSet(qApp, Property::AppBaseTabSize)) {
        return QStringLiteral("base");
    }
    return isSet(qApp, Property::AppLargeTabSize) ? QStringLiteral("large")
                                                  : QStringLiteral("medium");
}

QString fontSize(const QWidget &widget)
{
    if (isSet(&widget, Property::LargeTabSize)) {
        return QStringLiteral("large");
    }
    if (isSet(&widget, Property::SmallTabSize)) {
        return QStringLiteral("small");
    }
    return isSet(&widget, Property::BaseTabSize) ? QStringLiteral("base") : applicationFontSize();
}

/// Tells whether \a widget, and not the application alone, says how large its tabs are.
bool hasSize(const QWidget &widget)
{
    return isSet(&widget, Property::LargeTabSize) || isSet(&widget, Property::SmallTabSize) ||
           isSet(&widget, Property::BaseTabSize);
}

bool isAtSide(const QTabWidget &tabWidget)
{
    return tabWidget.tabPosition() == QTabWidget::West ||
           tabWidget.tabPosition() == QTabWidget::East;
}

/// Returns the extent along the bar, at least \a extent, that a tab has in a bar which its tabs
/// are to fill.
int stretchedExtent(const QStyleOptionTab &option, const QTabBar &tabBar, int extent)
{
    const QSize outer = tabBar.parentWidget() ? tabBar.parentWidget()->size() : tabBar.size();
    const int total = isVertical(option.shape) ? outer.height() : outer.width();
    const int count = tabBar.count();
    if (option.position == QStyleOptionTab::Beginning ||
        option.position == QStyleOptionTab::Middle) {
        return count > 0 ? qMax(extent, total / count) : extent;
    }
    // A single tab fills the bar; the last of several keeps its own size.
    const int rest = (2 - count) * total - (tabBar.usesScrollButtons() ? 0 : 4);
    return qMax(extent, rest);
}

} // namespace

QRect tabBarRect(const SubElementRequest &request)
{
    QRect rect = request.baseRect();
    const auto *option = qstyleoption_cast<const QStyleOptionTabWidgetFrame *>(request.option);
    if (!option || !isSet(request.widget, Property::Stretched)) {
        return rect;
    }
    if (isVertical(option->shape)) {
        rect.setHeight(request.widget->height());
    } else {
        rect.setWidth(request.widget->width());
    }
    return rect;
}

QRect rightButtonRect(const SubElementRequest &request)
{
    QRect rect = request.baseRect();
    const auto *option = qstyleoption_cast<const QStyleOptionTab *>(request.option);
    if (!option) {
        return rect;
    }
    switch (option->shape) {
    case QTabBar::RoundedNorth:
    case QTabBar::RoundedSouth:
        rect.moveRight(option->rect.right() - 2);
        break;
    case QTabBar::RoundedWest:
        rect.moveTop(option->rect.top() + 2);
        break;
    case QTabBar::RoundedEast:
        rect.moveBottom(option->rect.bottom() - 2);
        break;
    default:
        break;
    }
    return rect;
}

QRect textRect(const SubElementRequest &request)
{
    QRect rect =
        request.style.QCommonStyle::subElementRect(request.element, request.option, request.widget);
    const auto *option = qstyleoption_cast<const QStyleOptionTab *>(request.option);
    const bool isBold = option && !isCurrentTabHighlighted(request.widget) &&
                        tabBackground(*option) == TabBackground::Selected;
    if (!isBold) {
        return rect;
    }
    if (isEast(option->shape)) {
        rect.setBottom(rect.bottom() + boldGrowth);
    } else if (isWest(option->shape)) {
        rect.setTop(rect.top() - boldGrowth);
    } else {
        rect.setRight(rect.right() + boldGrowth);
    }
    return rect;
}

QSize tabSize(const ContentsRequest &request)
{
    QSize size = request.baseSize();
    const auto *tabBar = qobject_cast<const QTabBar *>(request.widget);
    if (!tabBar) {
        return size;
    }
    if (const auto *tabWidget = qobject_cast<const QTabWidget *>(tabBar->parentWidget())) {
        const int height = tabHeight(*tabBar, baseHeight(size));
        (isAtSide(*tabWidget) ? size.rwidth() : size.rheight()) = height;
    }
    const auto *option = qstyleoption_cast<const QStyleOptionTab *>(request.option);
    if (option && isSet(tabBar, Property::Stretched)) {
        int &extent = isVertical(option->shape) ? size.rheight() : size.rwidth();
        extent = stretchedExtent(*option, *tabBar, extent);
    }
    return size;
}

void polishFont(Polishing &polishing)
{
    polishing.setFont(ThemeResources::getFont(fontSize(polishing.widget())));
}

void polishSizedFont(Polishing &polishing)
{
    const QWidget &tabBar = polishing.widget();
    const QWidget *tabWidget = qobject_cast<const QTabWidget *>(tabBar.parentWidget());
    if (hasSize(tabBar)) {
        polishing.setFont(ThemeResources::getFont(fontSize(tabBar)));
    } else if (tabWidget && hasSize(*tabWidget)) {
        polishing.setFont(ThemeResources::getFont(fontSize(*tabWidget)));
    }
}

QFont applicationFont()
{
    return ThemeResources::getFont(applicationFontSize());
}

} // namespace TARN::Tabs
