#include "style/families/ToolBoxes.h"

#include "catalogue/Names.h"
#include "style/asking/OptionState.h"
#include "style/brushes/KeptBrushes.h"
#include "style/drawing/Lines.h"
#include "style/polishing/Polishing.h"

#include <QtCore/QPointer>
#include <QtGui/QPainter>
#include <QtWidgets/QLayout>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QWidget>

namespace TARN::ToolBoxes {

namespace {

constexpr int leastButtonHeight = 42;

/// Tells whether nothing above the tab has a line at its bottom.
bool hasTopLine(const QStyleOptionToolBox &tab)
{
    return tab.position == QStyleOptionToolBox::Beginning ||
           tab.position == QStyleOptionToolBox::OnlyOneTab ||
           tab.selectedPosition == QStyleOptionToolBox::PreviousIsSelected;
}

} // namespace

void polishButton(Polishing &polishing)
{
    polishing.setMinimumHeight(leastButtonHeight);
}

void polishToolBox(Polishing &polishing)
{
    QLayout *layout = polishing.widget().layout();
    if (!layout) {
        return;
    }
    const QMargins margins = layout->contentsMargins();
    const int spacing = layout->spacing();
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    polishing.addUndo([layout = QPointer<QLayout>(layout), margins, spacing] {
        if (layout && layout->contentsMargins().isNull() && layout->spacing() == 0) {
            layout->setContentsMargins(margins);
            layout->setSpacing(spacing);
        }
    });
}

bool drawTabShape(const PaintRequest &request)
{
    const auto *tab = qstyleoption_cast<const QStyleOptionToolBox *>(request.option);
    if (!tab) {
        return false;
    }
    QPainter &painter = *request.painter;
    const bool enabled = isEnabled(*tab);
    const QBrush &border = cardBorderBrush(enabled);
    painter.fillRect(tab->rect, themeBrush(BrushName::BackgroundUpLevel1Brush, enabled));
    fillEdge(painter, tab->rect.adjusted(0, 0, 0, -1), Qt::BottomEdge,
             themeColor(ColorName::BackgroundUpLevel2Color, enabled));
    fillEdge(painter, tab->rect, Qt::LeftEdge, border);
    fillEdge(painter, tab->rect, Qt::RightEdge, border);
    fillEdge(painter, tab->rect, Qt::BottomEdge, border);
    if (hasTopLine(*tab)) {
        fillEdge(painter, tab->rect, Qt::TopEdge, border);
    }
    return true;
}

} // namespace TARN::ToolBoxes
