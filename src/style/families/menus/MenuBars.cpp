#include "style/families/menus/MenuBars.h"

#include "catalogue/Names.h"
#include "style/asking/OptionState.h"
#include "style/drawing/Icons.h"
#include "style/families/menus/MenuSurfaces.h"
#include "style/text/Mnemonic.h"

#include <QtGui/QPainter>
#include <QtWidgets/QStyleOption>

namespace TARN::Menus {

namespace {

/// Draws the icon of an item of a menu bar; without one, its text.
void drawBarContents(const PaintRequest &request, const QStyleOptionMenuItem &option,
                     QPalette::ColorRole role)
{
    if (option.icon.isNull()) {
        const int flags =
            Qt::AlignCenter | Qt::TextDontClip | Qt::TextSingleLine | mnemonicFlags(request);
        request.proxy().drawItemText(request.painter, option.rect, flags, option.palette,
                                     isEnabled(option), option.text, role);
        return;
    }
    const int extent =
        request.proxy().pixelMetric(QStyle::PM_SmallIconSize, &option, request.widget);
    const QPalette::ColorGroup group =
        isEnabled(option) ? option.palette.currentColorGroup() : QPalette::Disabled;
    drawTintedIcon(
        *request.painter,
        QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, QSize(extent, extent), option.rect),
        option.icon, option.palette.brush(group, role));
}

} // namespace

bool drawBarItem(const PaintRequest &request)
{
    const auto *option = qstyleoption_cast<const QStyleOptionMenuItem *>(request.option);
    if (!option) {
        return false;
    }
    if (option->rect.isEmpty()) {
        return true;
    }
    const bool isHighlighted =
        has(*option, QStyle::State_Selected) || has(*option, QStyle::State_MouseOver);
    if (isHighlighted) {
        request.painter->fillRect(option->rect,
                                  themeColor(ColorName::MainColor, isEnabled(*option)));
    } else {
        request.painter->fillRect(option->rect, themeBrush(BrushName::BackgroundSubLevel2Brush,
                                                           isSurfaceEnabled(request)));
    }
    drawBarContents(request, *option,
                    isHighlighted ? QPalette::HighlightedText : QPalette::ButtonText);
    return true;
}

bool drawBarEmptyArea(const PaintRequest &request)
{
    request.painter->fillRect(request.option->rect, themeBrush(BrushName::BackgroundSubLevel2Brush,
                                                               isSurfaceEnabled(request)));
    return true;
}

} // namespace TARN::Menus
