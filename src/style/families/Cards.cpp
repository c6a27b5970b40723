#include "style/families/Cards.h"

#include "resources/ThemeResources.h"
#include "style/BaseStyle.h"
#include "style/Polishing.h"
#include "style/Properties.h"
#include "style/catalogue/Names.h"

#include <QtWidgets/QWidget>

namespace TARN::Cards {

void polishPart(BaseStyle & /*style*/, QWidget &widget)
{
    if (isSet(&widget, "CardWidgetBase_Header") || isSet(&widget, "CardWidgetBase_Contents") ||
        isSet(&widget, "CardWidgetBase_Footer")) {
        widget.setAttribute(Qt::WA_StyledBackground);
    }
}

void polishTitle(BaseStyle & /*style*/, QWidget &widget)
{
    if (!isSet(&widget, "CardWidgetBase_Title")) {
        return;
    }
    const QFont minimizedFont = ThemeResources::getFont(QStringLiteral("base"));
    const QFont defaultFont = ThemeResources::getFont(QStringLiteral("medium"));
    widget.setProperty("CardWidgetBase_Title_MinimizedFont", minimizedFont);
    widget.setProperty("CardWidgetBase_Title_DefaultFont", defaultFont);
    setPolishedFont(widget, isSet(widget.parent(), "minimized") ? minimizedFont : defaultFont);
}

void polishSubtitle(BaseStyle & /*style*/, QWidget &widget)
{
    if (!isSet(&widget, "CardWidgetBase_Subtitle")) {
        return;
    }
    QPalette palette = widget.palette();
    palette.setBrush(QPalette::All, QPalette::WindowText,
                     themeBrush(BrushName::ForegroundDisabledBrush, true));
    palette.setBrush(QPalette::Disabled, QPalette::WindowText,
                     themeBrush(BrushName::ForegroundDisabledBrush, false));
    widget.setPalette(palette);
}

void polishCard(BaseStyle & /*style*/, QWidget &widget)
{
    widget.setProperty("BackgroundBrush", themeBrush(BrushName::ForegroundMouseOverBrush, true));
    widget.setProperty("BackgroundBrushDisabled",
                       themeBrush(BrushName::ForegroundMouseOverBrush, false));
}

} // namespace TARN::Cards
