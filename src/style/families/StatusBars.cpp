#include "style/families/StatusBars.h"

#include "catalogue/Names.h"
#include "style/asking/OptionState.h"
#include "style/brushes/KeptBrushes.h"
#include "style/drawing/Lines.h"
#include "style/polishing/Polishing.h"

#include <QtCore/QTimer>
#include <QtGui/QPainter>
#include <QtWidgets/QWidget>

#include <memory>

namespace TARN::StatusBars {

namespace {

constexpr int leastHeight = 34;

} // namespace

void polish(Polishing &polishing)
{
    polishing.setMinimumHeight(leastHeight);
}

void polishLater(Polishing &polishing)
{
    // A bar is polished while it is being made; then the layout, which is in the middle of its
    // work, takes the height back.
    const auto isWanted = std::make_shared<bool>(true);
    QWidget &bar = polishing.widget();
    QTimer::singleShot(0, &bar, [&bar, isWanted] {
        if (*isWanted) {
            bar.setMinimumHeight(leastHeight);
        }
    });
    polishing.addUndo([isWanted] { *isWanted = false; });
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

bool drawItemFrame(const PaintRequest & /*request*/)
{
    return true;
}

} // namespace TARN::StatusBars
