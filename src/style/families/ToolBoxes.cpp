#include "style/families/ToolBoxes.h"

#include "catalogue/ComposedBrushes.h"
#include "catalogue/Names.h"
#include "style/asking/OptionState.h"
#include "style/brushes/KeptBrushes.h"
#include "style/brushes/LabelBrushes.h"
#include "style/drawing/Focus.h"
#include "style/drawing/Icons.h"
#include "style/drawing/Lines.h"
#include "style/polishing/Polishing.h"
#include "style/text/ElidedText.h"
#include "style/text/Mnemonic.h"

#include <QtCore/QPointer>
#include <QtGui/QPainter>
#include <QtGui/QPixmap>
#include <QtWidgets/QLayout>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QWidget>

namespace TARN::ToolBoxes {

namespace {

constexpr int leastButtonHeight = 42;
/// The mark of the tab whose page is open.
constexpr int openMarkWidth = 3;
/// What stands beside the icon and the text of a tab, and between the two.
constexpr int padding = 8;
constexpr int iconSpacing = 5;
/// How far the focus is inside of the tab.
constexpr int focusMargin = 3;

/// Tells whether nothing above the tab has a line at its bottom.
bool hasTopLine(const QStyleOptionToolBox &tab)
{
    return tab.position == QStyleOptionToolBox::Beginning ||
           tab.position == QStyleOptionToolBox::OnlyOneTab ||
           tab.selectedPosition == QStyleOptionToolBox::PreviousIsSelected;
}

void drawFace(QPainter &painter, const QStyleOptionToolBox &tab, const QBrush &face)
{
    const bool enabled = isEnabled(tab);
    const QBrush &border = cardBorderBrush(enabled);
    painter.fillRect(tab.rect, face);
    fillEdge(painter, tab.rect.adjusted(0, 0, 0, -1), Qt::BottomEdge,
             themeColor(ColorName::BackgroundUpLevel2Color, enabled));
    fillEdge(painter, tab.rect, Qt::LeftEdge, border);
    fillEdge(painter, tab.rect, Qt::RightEdge, border);
    fillEdge(painter, tab.rect, Qt::BottomEdge, border);
    if (hasTopLine(tab)) {
        fillEdge(painter, tab.rect, Qt::TopEdge, border);
    }
}

Interaction interactionOf(const QStyleOption &tab)
{
    if (isEnabled(tab) && has(tab, QStyle::State_Sunken)) {
        return Interaction::Pressed;
    }
    return isHovered(tab) ? Interaction::Hover : Interaction::None;
}

/// Returns the brush of a tab that is used, which then looks like any button.
QBrush usedBrush(const QStyleOption &tab, BrushField field)
{
    return composedBrush(ComposedWidget::Button, KindWord(),
                         {CheckState::Unchecked, interactionOf(tab)}, field, true);
}

/// Draws the icon at the start of \a contents. Returns the room of the text.
QRect drawTabIcon(const PaintRequest &request, const QStyleOptionToolBox &tab, const QIcon &icon,
                  const QRect &contents)
{
    QRect room = contents.adjusted(padding, 0, -padding, 0);
    if (!icon.isNull()) {
        const int extent = request.metric(QStyle::PM_SmallIconSize);
        const QPixmap pixmap = iconPixmap(icon, QSize(extent, extent),
                                          isEnabled(tab) ? QIcon::Normal : QIcon::Disabled,
                                          QIcon::Off, request.widget);
        const QRect place(room.left(), room.top(), sizeOf(pixmap).width(), room.height());
        drawItemPixmap(request.proxy(), *request.painter,
                       QStyle::visualRect(tab.direction, contents, place), pixmap);
        room.setLeft(place.right() + 1 + iconSpacing);
    }
    return QStyle::visualRect(tab.direction, contents, room);
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

QRect contentsRect(const SubElementRequest &request)
{
    return request.option->rect;
}

bool drawTabShape(const PaintRequest &request)
{
    const auto *tab = qstyleoption_cast<const QStyleOptionToolBox *>(request.option);
    if (!tab) {
        return false;
    }
    const bool enabled = isEnabled(*tab);
    drawFace(*request.painter, *tab, themeBrush(BrushName::BackgroundUpLevel1Brush, enabled));
    return true;
}

bool drawLivelyTabShape(const PaintRequest &request)
{
    const auto *tab = qstyleoption_cast<const QStyleOptionToolBox *>(request.option);
    if (!tab) {
        return false;
    }
    const bool enabled = isEnabled(*tab);
    const bool isUsed = interactionOf(*tab) != Interaction::None;
    drawFace(*request.painter, *tab,
             isUsed ? usedBrush(*tab, BrushField::Background)
                    : themeBrush(BrushName::BackgroundUpLevel1Brush, enabled));
    if (has(*tab, QStyle::State_Selected)) {
        const QRect inside = tab->rect.adjusted(1, 1, -1, -1);
        const QRect mark(inside.left(), inside.top(), openMarkWidth, inside.height());
        fillOnPixels(*request.painter, QStyle::visualRect(tab->direction, tab->rect, mark) & inside,
                     themeBrush(BrushName::MainBrush, enabled));
    }
    return true;
}

bool drawTabLabel(const PaintRequest &request)
{
    const auto *tab = qstyleoption_cast<const QStyleOptionToolBox *>(request.option);
    if (!tab) {
        return false;
    }
    QStyleOptionButton label;
    label.QStyleOption::operator=(*tab);
    label.icon = tab->icon;
    const bool isUsed = interactionOf(*tab) != Interaction::None;
    useForeground(label, isUsed ? usedBrush(*tab, BrushField::Foreground)
                                : labelBrush(Qt::NoBrush, isEnabled(*tab)));
    const QRect contents =
        request.proxy().subElementRect(QStyle::SE_ToolBoxTabContents, tab, request.widget);
    const QRect text = drawTabIcon(request, *tab, label.icon, contents);
    if (text.isEmpty()) {
        return true;
    }
    const int flags = mnemonicFlags(request);
    request.proxy().drawItemText(
        request.painter, text,
        int(QStyle::visualAlignment(tab->direction, Qt::AlignLeft) | Qt::AlignVCenter) | flags,
        label.palette, isEnabled(*tab),
        elidedText(tab->fontMetrics, tab->text, Qt::ElideRight, text.width(), flags),
        QPalette::ButtonText);
    if (has(*tab, QStyle::State_HasFocus)) {
        drawFocusRect(request,
                      contents.adjusted(focusMargin, focusMargin, -focusMargin, -focusMargin));
    }
    return true;
}

} // namespace TARN::ToolBoxes
