#include "style/families/Windows.h"

#include "style/BaseStyle.h"
#include "style/asking/OptionState.h"
#include "style/asking/Properties.h"
#include "style/drawing/Drawing.h"
#include "style/families/Cards.h"

#include <QtGui/QPainter>
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

bool drawFrame(const BaseStyle & /*style*/, const PaintRequest &request)
{
    const QStyleOption &option = *request.option;
    fillFrame(*request.painter, option.rect, BaseStyle::getBorderBrush(isEnabled(option)));
    return true;
}

bool drawBackground(const BaseStyle &style, const PaintRequest &request)
{
    const QStyleOption &option = *request.option;
    // A main window inside of another one is one of its contents and lies on their ground.
    if (isA(request.widget, "QMainWindow") && request.widget->isWindow()) {
        request.painter->fillRect(option.rect, option.palette.dark());
        return true;
    }
    if (isA(request.widget, "QDockWidget")) {
        request.painter->fillRect(option.rect, option.palette.light());
        return true;
    }
    return Cards::drawPart(style, request);
}

} // namespace TARN::Windows
