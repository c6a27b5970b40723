#include "style/families/ToolTips.h"

#include "catalogue/Names.h"
#include "style/drawing/Lines.h"

#include <QtGui/QPainter>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QToolTip>

namespace TARN::ToolTips {

namespace {

/// Returns the brush of the border of the tip that is shown. Its text tells whether it is about an
/// error.
QBrush tipBorder(const QStyleOption &option)
{
    const bool isAboutError = QToolTip::text().contains(QLatin1String("errorTooltip"));
    // Tips are never disabled.
    return isAboutError ? QBrush(themeColor(ColorName::StatusDangerColor, true))
                        : option.palette.shadow();
}

} // namespace

bool drawTip(const PaintRequest &request)
{
    const QStyleOption &option = *request.option;
    QPainter &painter = *request.painter;
    painter.fillRect(option.rect, option.palette.toolTipBase());
    fillFrame(painter, option.rect, tipBorder(option), Line::Hairline);
    return true;
}

} // namespace TARN::ToolTips
