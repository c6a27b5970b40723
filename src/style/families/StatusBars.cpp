#include "style/families/StatusBars.h"

#include "catalogue/Names.h"
#include "style/asking/OptionState.h"
#include "style/brushes/KeptBrushes.h"
#include "style/drawing/Lines.h"
#include "style/polishing/Polishing.h"

#include <QtGui/QPainter>
#include <QtWidgets/QWidget>

namespace TARN::StatusBars {

namespace {

constexpr int leastHeight = 34;

} // namespace

void polish(Polishing &polishing)
{
    polishing.setMinimumHeight(leastHeight);
}

bool drawPanel(const PaintRequest &request)
{
    const QStyleOption &option = *request.option;
    const bool enabled = isEnabled(option);
    request.painter->fillRect(option.rect,
                              themeBrush(BrushName::BackgroundSubLevel1Brush, enabled));
    fillEdge(*request.painter, option.rect, Qt::TopEdge, cardBorderBrush(enabled));
    return true;
}

} // namespace TARN::StatusBars
