#include "style/families/Arrows.h"

#include "style/asking/OptionState.h"
#include "style/asking/Properties.h"
#include "style/brushes/ButtonBrushChoice.h"
#include "style/brushes/LabelBrushes.h"
#include "style/drawing/Icons.h"

#include <QtWidgets/QDateTimeEdit>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyleOption>

namespace TARN::Arrows {

namespace {

/// Tells whether an arrow belongs to an entry of a view or a menu, which is no button.
bool isOfItem(const QStyleOption &option)
{
    return option.type == QStyleOption::SO_ViewItem || option.type == QStyleOption::SO_MenuItem;
}

/// Returns the brush of the text that the arrow stands beside.
QBrush arrowBrush(const PaintRequest &request)
{
    const QStyleOption &option = *request.option;
    if (isOfItem(option)) {
        return option.palette.windowText();
    }
    return labelBrush(buttonBrushes(&option, request.widget).foreground, isEnabled(option));
}

/// Tells whether a widget edits a date that a calendar can be opened for.
bool opensCalendar(const QWidget *widget)
{
    const auto *edit = qobject_cast<const QDateTimeEdit *>(widget);
    return edit && !qobject_cast<const QTimeEdit *>(widget) && edit->calendarPopup();
}

/// Returns how large an arrow is that has enough room: that of a scroll bar is as large as its
/// button, all others are as large as icons.
QStyle::PixelMetric arrowMetric(const QWidget *widget)
{
    return qobject_cast<const QScrollBar *>(widget) ? QStyle::PM_ScrollBarExtent
                                                    : QStyle::PM_SmallIconSize;
}

bool drawArrow(const PaintRequest &request, const char *icon)
{
    if (isSet(request.widget, Property::NoMenuArrow)) {
        return true;
    }
    const QRect &room = request.option->rect;
    const int wanted =
        request.proxy().pixelMetric(arrowMetric(request.widget), request.option, request.widget);
    const int extent = qMin(wanted, qMin(room.width(), room.height()));
    if (extent > 0) {
        const QRect arrow =
            QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, QSize(extent, extent), room);
        drawKeptIcon(*request.painter, arrow, icon, arrowBrush(request));
    }
    return true;
}

} // namespace

bool drawDown(const PaintRequest &request)
{
    return drawArrow(request, opensCalendar(request.widget) ? "view.calendar" : "chevron.down");
}

bool drawLeft(const PaintRequest &request)
{
    return drawArrow(request, "chevron.left");
}

bool drawRight(const PaintRequest &request)
{
    return drawArrow(request, "chevron.right");
}

bool drawUp(const PaintRequest &request)
{
    return drawArrow(request, "chevron.up");
}

} // namespace TARN::Arrows
