#include "style/families/ProgressBars.h"

#include "style/BaseStyle.h"
#include "style/Geometry.h"

#include <QtWidgets/QProgressBar>
#include <QtWidgets/QStyleOption>

namespace TARN::ProgressBars {

QSize progressBarSize(const BaseStyle &style, const ContentsRequest &request)
{
    const QSize size = baseSize(style, request);
    const auto *option = qstyleoption_cast<const QStyleOptionProgressBar *>(request.option);
    if (!option) {
        return size;
    }
    // The text has 2 pixels at either side of it.
    const int thickness = option->fontMetrics.height() + 4;
    return size.expandedTo(option->orientation == Qt::Vertical ? QSize(thickness, 0)
                                                               : QSize(0, thickness));
}

void polish(BaseStyle & /*style*/, QWidget &widget)
{
    static_cast<QProgressBar &>(widget).setTextDirection(QProgressBar::BottomToTop);
}

bool drawGroove(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

bool drawContents(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

bool drawLabel(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

} // namespace TARN::ProgressBars
