#include "style/families/Windows.h"

#include "style/asking/OptionState.h"
#include "style/brushes/KeptBrushes.h"
#include "style/drawing/Lines.h"
#include "style/families/Cards.h"
#include "style/families/DockWidgets.h"

#include <QtGui/QPainter>
#include <QtWidgets/QAbstractScrollArea>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QMainWindow>

namespace TARN::Windows {

void polishScrollArea(QWidget &widget)
{
    // What only says that it is a scroll area may have no viewport.
    if (const auto *area = qobject_cast<QAbstractScrollArea *>(&widget)) {
        area->viewport()->setBackgroundRole(QPalette::Light);
    }
}

void polishMainWindow(QWidget &widget)
{
    if (widget.isWindow()) {
        widget.setAttribute(Qt::WA_StyledBackground);
    }
}

void polishWindow(QStyle &style, QWidget &widget)
{
    if (widget.isWindow() || qobject_cast<QDockWidget *>(&widget)) {
        widget.installEventFilter(&style);
    }
}

bool drawFrame(const PaintRequest &request)
{
    const QStyleOption &option = *request.option;
    fillFrame(*request.painter, option.rect, cardBorderBrush(isEnabled(option)));
    return true;
}

bool drawBackground(const PaintRequest &request)
{
    const QStyleOption &option = *request.option;
    // A main window inside of another one is one of its contents and lies on their ground.
    if (qobject_cast<const QMainWindow *>(request.widget) && request.widget->isWindow()) {
        request.painter->fillRect(option.rect, option.palette.dark());
        return true;
    }
    return DockWidgets::drawBackground(request) || Cards::drawPart(request);
}

} // namespace TARN::Windows
