#include "style/families/buttons/ButtonParts.h"

#include "style/asking/OptionState.h"
#include "style/asking/Properties.h"
#include "style/drawing/Palettes.h"

#include <QtCore/QtMath>

namespace TARN::Buttons {

namespace {

/// Returns \a rect, made so small that its corners stay inside of the circle in \a face.
QRect insideOfCircle(const QRect &rect, const QRect &face)
{
    constexpr qreal margin = 0.15; // at each side of the largest square in a circle of diameter 1
    const int inset = qCeil(margin * qMin(face.width(), face.height()));
    return rect & face.adjusted(inset, inset, -inset, -inset);
}

} // namespace

void drawFocus(const PaintRequest &request, const QPalette &palette, const QRect &rect)
{
    if (!has(*request.option, QStyle::State_HasFocus)) {
        return;
    }
    QStyleOptionFocusRect focus;
    focus.QStyleOption::operator=(*request.option);
    focus.rect = isSet(request.widget, Property::Circular)
                     ? insideOfCircle(rect, request.option->rect)
                     : rect;
    // The line is drawn in the text colour: that of the button stands out from every face.
    focus.palette = paletteWith(palette, QPalette::Text, palette.buttonText());
    request.draw(QStyle::PE_FrameFocusRect, focus);
}

int menuColumnWidth(const PaintRequest &request)
{
    return request.metric(QStyle::PM_MenuButtonIndicator);
}

QRect menuColumn(const QRect &contents, int width, Qt::LayoutDirection direction)
{
    constexpr int margin = 2; // keeps the arrow clear of the focus rectangle
    return QStyle::visualRect(direction, contents,
                              contents.adjusted(contents.width() - width - margin, 0, -margin, 0));
}

QRect besideMenuColumn(const QRect &contents, int width, Qt::LayoutDirection direction)
{
    return QStyle::visualRect(direction, contents, contents.adjusted(0, 0, -width, 0));
}

} // namespace TARN::Buttons
