#include "style/families/Components.h"

#include "catalogue/Names.h"
#include "resources/ThemeResources.h"
#include "style/asking/Properties.h"
#include "style/text/WidgetFont.h"

#include <QtGui/QPixmap>
#include <QtWidgets/QWidget>

namespace TARN::Components {

namespace {

constexpr ColorName seriesColorNames[] = {
    ColorName::Series01Color, ColorName::Series02Color, ColorName::Series03Color,
    ColorName::Series04Color, ColorName::Series05Color, ColorName::Series06Color,
    ColorName::Series07Color, ColorName::Series08Color, ColorName::Series09Color,
    ColorName::Series10Color, ColorName::Series11Color,
};

/// Hands \a widget \a brush and its disabled twin.
void setBrushes(QWidget &widget, const QByteArray &property, BrushName brush)
{
    widget.setProperty(property.constData(), themeBrush(brush, true));
    widget.setProperty((property + "Disabled").constData(), themeBrush(brush, false));
}

void setColor(QWidget &widget, const char *property, ColorName color)
{
    widget.setProperty(property, themeColor(color, true));
}

QList<QColor> seriesColors()
{
    QList<QColor> colors;
    for (const ColorName color : seriesColorNames) {
        colors.append(themeColor(color, true));
    }
    return colors;
}

} // namespace

void polishContainer(QWidget &widget)
{
    if (isSet(&widget, "ButtonGroupWidget_Container") ||
        isSet(&widget, "ColorButtonWidget_Container")) {
        widget.setProperty("CornerRadius",
                           ThemeResources::getCornerRadius(QStringLiteral("BaseSize")));
    }
}

void polishButtonGroup(QWidget &widget)
{
    setBrushes(widget, "BackgroundBrush", BrushName::ListBackgroundBrush);
    setBrushes(widget, "BorderBrush", BrushName::ListBorderBrush);
    setBrushes(widget, "WorkflowLinkBrush", BrushName::PrioritySecondaryUpLevel1Brush);
}

void polishRoundedPixmap(QWidget &widget)
{
    const QVariant pixmap = widget.property("roundedPixmap");
    if (pixmap.userType() != QMetaType::QPixmap || pixmap.value<QPixmap>().isNull()) {
        return;
    }
    widget.setProperty("BorderBrush", themeBrush(BrushName::BackgroundSubLevel1Brush, true));
    widget.setProperty("CornerRadius",
                       ThemeResources::getCornerRadius(QStringLiteral("MediumSize")));
}

void polishPill(QWidget &widget)
{
    if (!isSet(&widget, "Pill_Font")) {
        return;
    }
    QFont font = ThemeResources::getFont(QStringLiteral("small"));
    font.setWeight(QFont::Bold);
    setPolishedFont(widget, font);
}

void polishPeriodicTable(QWidget &widget)
{
    setColor(widget, "PeriodicTableDelegate_BackgroundColor", ColorName::StatusConfigColor);
    setColor(widget, "PeriodicTableDelegate_BorderColor", ColorName::StatusConfigColor);
    setColor(widget, "PeriodicTableDelegate_ForegroundColor", ColorName::ForegroundColor);
    setColor(widget, "PeriodicTableDelegate_ForegroundSubLevelColor",
             ColorName::ForegroundSubLevel1Color);
    setColor(widget, "PeriodicTableDelegate_ForegroundUpLevelColor",
             ColorName::ForegroundUpLevel1Color);
    widget.setProperty("PeriodicTableDelegate_ColorList", QVariant::fromValue(seriesColors()));
}

} // namespace TARN::Components
