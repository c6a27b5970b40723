#include "style/families/Components.h"

#include "resources/ThemeResources.h"
#include "style/BaseStyle.h"
#include "style/Polishing.h"
#include "style/Properties.h"

#include <QtGui/QPixmap>
#include <QtWidgets/QWidget>

namespace TARN::Components {

namespace {

constexpr int seriesColorCount = 11;

/// Hands \a widget the brush \a variable and its disabled twin.
void setBrushes(QWidget &widget, const QByteArray &property, const QString &variable)
{
    widget.setProperty(property.constData(), BaseStyle::getBrush(variable, true));
    widget.setProperty((property + "Disabled").constData(), BaseStyle::getBrush(variable, false));
}

void setColor(QWidget &widget, const char *property, const QString &variable)
{
    widget.setProperty(property, BaseStyle::getColor(variable, true));
}

QList<QColor> seriesColors()
{
    QList<QColor> colors;
    for (int number = 1; number <= seriesColorCount; ++number) {
        colors.append(ThemeResources::getColor(
            QStringLiteral("Series%1Color").arg(number, 2, 10, QLatin1Char('0'))));
    }
    return colors;
}

} // namespace

void polishContainer(BaseStyle & /*style*/, QWidget &widget)
{
    if (isSet(&widget, "ButtonGroupWidget_Container") ||
        isSet(&widget, "ColorButtonWidget_Container")) {
        widget.setProperty("CornerRadius",
                           ThemeResources::getCornerRadius(QStringLiteral("BaseSize")));
    }
}

void polishButtonGroup(BaseStyle & /*style*/, QWidget &widget)
{
    setBrushes(widget, "BackgroundBrush", QStringLiteral("ListBackgroundBrush"));
    setBrushes(widget, "BorderBrush", QStringLiteral("ListBorderBrush"));
    setBrushes(widget, "WorkflowLinkBrush", QStringLiteral("PrioritySecondaryUpLevel1Brush"));
}

void polishRoundedPixmap(BaseStyle & /*style*/, QWidget &widget)
{
    const QVariant pixmap = widget.property("roundedPixmap");
    if (pixmap.userType() != QMetaType::QPixmap || pixmap.value<QPixmap>().isNull()) {
        return;
    }
    widget.setProperty("BorderBrush",
                       BaseStyle::getBrush(QStringLiteral("BackgroundSubLevel1Brush"), true));
    widget.setProperty("CornerRadius",
                       ThemeResources::getCornerRadius(QStringLiteral("MediumSize")));
}

void polishPill(BaseStyle & /*style*/, QWidget &widget)
{
    if (!isSet(&widget, "Pill_Font")) {
        return;
    }
    QFont font = ThemeResources::getFont(QStringLiteral("small"));
    font.setWeight(QFont::Bold);
    setPolishedFont(widget, font);
}

void polishPeriodicTable(BaseStyle & /*style*/, QWidget &widget)
{
    const QString background = QStringLiteral("StatusConfigColor");
    setColor(widget, "PeriodicTableDelegate_BackgroundColor", background);
    setColor(widget, "PeriodicTableDelegate_BorderColor", background);
    setColor(widget, "PeriodicTableDelegate_ForegroundColor", QStringLiteral("ForegroundColor"));
    setColor(widget, "PeriodicTableDelegate_ForegroundSubLevelColor",
             QStringLiteral("ForegroundSubLevel1Color"));
    setColor(widget, "PeriodicTableDelegate_ForegroundUpLevelColor",
             QStringLiteral("ForegroundUpLevel1Color"));
    widget.setProperty("PeriodicTableDelegate_ColorList", QVariant::fromValue(seriesColors()));
}

} // namespace TARN::Components
