#include "style/families/Components.h"

#include "catalogue/Names.h"
#include "resources/ThemeResources.h"
#include "style/asking/Properties.h"
#include "style/polishing/Polishing.h"

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

/// Hands the widget \a brush and its disabled twin.
void setBrushes(Polishing &polishing, Property property, Property twin, BrushName brush)
{
    polishing.setProperty(property, themeBrush(brush, true));
    polishing.setProperty(twin, themeBrush(brush, false));
}

void setColor(Polishing &polishing, Property property, ColorName color)
{
    polishing.setProperty(property, themeColor(color, true));
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

void polishContainer(Polishing &polishing)
{
    polishing.setProperty(Property::CornerRadius,
                          ThemeResources::getCornerRadius(QStringLiteral("BaseSize")));
}

void polishButtonGroup(Polishing &polishing)
{
    setBrushes(polishing, Property::BackgroundBrush, Property::BackgroundBrushDisabled,
               BrushName::ListBackgroundBrush);
    setBrushes(polishing, Property::BorderBrush, Property::BorderBrushDisabled,
               BrushName::ListBorderBrush);
    setBrushes(polishing, Property::WorkflowLinkBrush, Property::WorkflowLinkBrushDisabled,
               BrushName::PrioritySecondaryUpLevel1Brush);
}

void polishRoundedPixmap(Polishing &polishing)
{
    const QVariant pixmap = propertyOf(&polishing.widget(), Property::RoundedPixmap);
    if (pixmap.userType() != QMetaType::QPixmap || pixmap.value<QPixmap>().isNull()) {
        return;
    }
    polishing.setProperty(Property::BorderBrush,
                          themeBrush(BrushName::BackgroundSubLevel1Brush, true));
    polishing.setProperty(Property::CornerRadius,
                          ThemeResources::getCornerRadius(QStringLiteral("MediumSize")));
}

void polishPill(Polishing &polishing)
{
    QFont font = ThemeResources::getFont(QStringLiteral("small"));
    font.setWeight(QFont::Bold);
    polishing.setFont(font);
}

void polishPeriodicTable(Polishing &polishing)
{
    setColor(polishing, Property::PeriodicTableBackgroundColor, ColorName::StatusConfigColor);
    setColor(polishing, Property::PeriodicTableBorderColor, ColorName::StatusConfigColor);
    setColor(polishing, Property::PeriodicTableForegroundColor, ColorName::ForegroundColor);
    setColor(polishing, Property::PeriodicTableForegroundSubLevelColor,
             ColorName::ForegroundSubLevel1Color);
    setColor(polishing, Property::PeriodicTableForegroundUpLevelColor,
             ColorName::ForegroundUpLevel1Color);
    polishing.setProperty(Property::PeriodicTableColorList, QVariant::fromValue(seriesColors()));
}

} // namespace TARN::Components
