#include "style/families/Windows.h"

#include "catalogue/Names.h"
#include "style/asking/OptionState.h"
#include "style/brushes/KeptBrushes.h"
#include "style/drawing/Grips.h"
#include "style/drawing/Lines.h"
#include "style/families/Cards.h"
#include "style/families/DockWidgets.h"
#include "style/polishing/Polishing.h"

#include <QtCore/QPointer>
#include <QtGui/QPainter>
#include <QtWidgets/QAbstractScrollArea>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QStyleOption>

namespace TARN::Windows {

void polishScrollArea(Polishing &polishing)
{
    const auto *area = qobject_cast<QAbstractScrollArea *>(&polishing.widget());
    if (!area) {
        // What only says that it is a scroll area may have no viewport.
        return;
    }
    area->viewport()->setBackgroundRole(QPalette::Light);
    polishing.addUndo([viewport = QPointer<QWidget>(area->viewport())] {
        if (viewport && viewport->backgroundRole() == QPalette::Light) {
            // That of what it stands on.
            viewport->setBackgroundRole(QPalette::NoRole);
        }
    });
}

void polishMainWindow(Polishing &polishing)
{
    if (polishing.widget().isWindow()) {
        polishing.setAttribute(Qt::WA_StyledBackground);
    }
}

void polishWindow(Polishing &polishing)
{
    const QWidget &widget = polishing.widget();
    if (widget.isWindow() || qobject_cast<const QDockWidget *>(&widget)) {
        polishing.installEventFilter();
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

bool drawSizeGrip(const PaintRequest &request)
{
    const auto *grip = qstyleoption_cast<const QStyleOptionSizeGrip *>(request.option);
    if (!grip) {
        return false;
    }
    drawDotTriangle(*request.painter, grip->rect, grip->corner,
                    themeBrush(BrushName::ForegroundDisabledBrush, isEnabled(*grip)));
    return true;
}

} // namespace TARN::Windows
