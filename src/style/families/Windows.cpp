#include "style/families/Windows.h"

#include "style/BaseStyle.h"

#include <QtWidgets/QDockWidget>
#include <QtWidgets/QScrollArea>

namespace TARN::Windows {

namespace {

constexpr int leastStatusBarHeight = 34;

} // namespace

void polishStatusBar(BaseStyle & /*style*/, QWidget &widget)
{
    widget.setMinimumHeight(leastStatusBarHeight);
}

void polishScrollArea(BaseStyle & /*style*/, QWidget &widget)
{
    static_cast<QScrollArea &>(widget).viewport()->setBackgroundRole(QPalette::Light);
}

void polishMainWindow(BaseStyle & /*style*/, QWidget &widget)
{
    if (widget.isWindow()) {
        widget.setAttribute(Qt::WA_StyledBackground);
    }
}

void polishDockWidget(BaseStyle & /*style*/, QWidget &widget)
{
    widget.setAttribute(Qt::WA_StyledBackground);
}

void polishWindow(BaseStyle &style, QWidget &widget)
{
    if (widget.isWindow() || qobject_cast<QDockWidget *>(&widget)) {
        widget.installEventFilter(&style);
    }
}

bool drawFrame(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

bool drawBackground(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

} // namespace TARN::Windows
