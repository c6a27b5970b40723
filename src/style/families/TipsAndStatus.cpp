#include "style/families/TipsAndStatus.h"

#include "catalogue/Names.h"
#include "style/BaseStyle.h"
#include "style/asking/OptionState.h"
#include "style/drawing/Drawing.h"

#include <QtGui/QPainter>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QToolTip>

namespace TARN::TipsAndStatus {

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

bool drawTip(const BaseStyle & /*style*/, const PaintRequest &request)
{
    const QStyleOption &option = *request.option;
    QPainter &painter = *request.painter;
    painter.fillRect(option.rect, option.palette.toolTipBase());
    fillFrame(painter, option.rect, tipBorder(option), Line::Hairline);
    return true;
}

bool drawStatusBar(const BaseStyle & /*style*/, const PaintRequest &request)
{
    const QStyleOption &option = *request.option;
    const bool enabled = isEnabled(option);
    request.painter->fillRect(option.rect,
                              themeBrush(BrushName::BackgroundSubLevel1Brush, enabled));
    fillEdge(*request.painter, option.rect, Qt::TopEdge, BaseStyle::getBorderBrush(enabled));
    return true;
}

} // namespace TARN::TipsAndStatus
