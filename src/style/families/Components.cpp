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
void setBrushes(QWidget &widget, Property property, Property twin, BrushName brush)
{
    setProperty(widget, property, themeBrush(brush, true));
    setProperty(widget, twin, themeBrush(brush, false));
}

void setColor(QWidget &widget, Property property, ColorName color)
{
    setProperty(widget, property, themeColor(color, true));
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
    setProperty(widget, Property::CornerRadius,
                ThemeResources::getCornerRadius(QStringLiteral("BaseSize")));
}

void polishButtonGroup(QWidget &widget)
{
    setBrushes(widget, Property::BackgroundBrush, Property::BackgroundBrushDisabled,
               BrushName::ListBackgroundBrush);
    setBrushes(widget, Property::BorderBrush, Property::BorderBrushDisabled,
               BrushName::ListBorderBrush);
    setBrushes(widget, Property::WorkflowLinkBrush, Property::WorkflowLinkBrushDisabled,
               BrushName::PrioritySecondaryUpLevel1Brush);
}

void polishRoundedPixmap(QWidget &widget)
{
    const QVariant pixmap = propertyOf(&widget, Property::RoundedPixmap);
    if (pixmap.userType() != QMetaType::QPixmap || pixmap.value<QPixmap>().isNull()) {
        return;
    }
    setProperty(widget, Property::BorderBrush,
                themeBrush(BrushName::BackgroundSubLevel1Brush, true));
    setProperty(widget, Property::CornerRadius,
                ThemeResources::getCornerRadius(QStringLiteral("MediumSize")));
}

void polishPill(QWidget &widget)
{
    QFont font = ThemeResources::getFont(QStringLiteral("small"));
    font.setWeight(QFont::Bold);
    setPolishedFont(widget, font);
}

void polishPeriodicTable(QWidget &widget)
{
    setColor(widget, Property::PeriodicTableBackgroundColor, ColorName::StatusConfigColor);
    setColor(widget, Property::PeriodicTableBorderColor, ColorName::StatusConfigColor);
    setColor(widget, Property::PeriodicTableForegroundColor, ColorName::ForegroundColor);
    setColor(widget, Property::PeriodicTableForegroundSubLevelColor,
             ColorName::ForegroundSubLevel1Color);
    setColor(widget, Property::PeriodicTableForegroundUpLevelColor,
             ColorName::ForegroundUpLevel1Color);
    setProperty(widget, Property::PeriodicTableColorList, QVariant::fromValue(seriesColors()));
}

} // namespace TARN::Components
