#include "style/families/menus/MenuSurfaces.h"

#include "catalogue/Names.h"
#include "style/asking/OptionState.h"

#include <QtGui/QPainter>
#include <QtWidgets/QWidget>
#include <QtWidgets/qdrawutil.h>

namespace TARN::Menus {

namespace {

constexpr int frameDarkness = 160;

} // namespace

bool isSurfaceEnabled(const PaintRequest &request)
{
    return request.widget ? request.widget->isEnabled() : isEnabled(*request.option);
}

QColor outlineColor(const QStyleOption &option)
{
    return option.palette.color(QPalette::Window).darker(frameDarkness);
}

bool drawPanel(const PaintRequest &request)
{
    const QStyleOption &option = *request.option;
    // A painter that is not at work has no device, which the frame would be drawn for.
    if (option.rect.isEmpty() || !request.painter->isActive()) {
        return true;
    }
    request.painter->fillRect(
        option.rect, themeBrush(BrushName::BackgroundSubLevel1Brush, isSurfaceEnabled(request)));
    qDrawPlainRect(request.painter, option.rect, outlineColor(option));
    return true;
}

} // namespace TARN::Menus
