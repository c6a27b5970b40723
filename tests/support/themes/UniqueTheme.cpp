#include "support/themes/UniqueTheme.h"

#include <QtCore/QStringList>

#include <support/Text.h>
#include <support/Variables.h>

namespace {

constexpr const char *brushNames[] = {
    "BackgroundSubLevel1Brush",
    "BackgroundUpLevel1Brush",
    "ButtonUncheckedHoverForegroundBrush",
    "ForegroundBrush",
    "ForegroundDisabledBrush",
    "ForegroundMouseOverBrush",
    "InputBackgroundBrush",
    "InputBorderBrush",
    "InputForegroundBrush",
    "ItemViewBackgroundBrush",
    "ListBackgroundBrush",
    "ListBorderBrush",
    "MainBrush",
    "PrioritySecondaryUpLevel1Brush",
    "SliderThumbNailHoverBrush",
    "SliderThumbNailPressedBrush",
};

constexpr const char *colorNames[] = {
    "ForegroundColor", "ForegroundSubLevel1Color", "ForegroundUpLevel1Color",
    "MainColor",       "StatusConfigColor",
};

constexpr int seriesCount = 12;

struct FontSize
{
    const char *name;
    int points;
};

constexpr FontSize fontSizes[] = {{"small", 7}, {"base", 9}, {"medium", 12}, {"large", 15}};

} // namespace

UniqueTheme::UniqueTheme()
{
    const auto nextColor = [this] { return QColor(0x40, 0x20, m_names.size() + 1); };
    for (const char *name : brushNames) {
        for (const QString &variant : {text(name), text(name) + text("Disabled")}) {
            m_brushes.insert(variant, QBrush(nextColor()));
            m_names.insert(nextColor().rgb(), variant);
        }
    }
    QStringList colors;
    for (const char *name : colorNames) {
        colors << text(name) << text(name) + text("Disabled");
    }
    for (int number = 1; number <= seriesCount; ++number) {
        colors << QStringLiteral("Series%1Color").arg(number, 2, 10, QLatin1Char('0'));
    }
    for (const QString &name : colors) {
        m_colors.insert(name, nextColor());
        m_names.insert(nextColor().rgb(), name);
    }
    QVariantMap fonts;
    for (const FontSize &size : fontSizes) {
        fonts.insert(text(size.name), QFont(text("DejaVu Sans"), size.points));
    }
    publishVariables({{text("brushes"), m_brushes},
                      {text("colors"), m_colors},
                      {text("fonts"), fonts},
                      {text("cornerRadius"), QVariantMap{{text("BaseSize"), baseRadius},
                                                         {text("MediumSize"), mediumRadius}}}});
}

QString UniqueTheme::nameOf(const QBrush &brush) const
{
    return brush.style() == Qt::NoBrush ? text("none") : nameOf(brush.color());
}

QString UniqueTheme::nameOf(const QColor &color) const
{
    return m_names.value(color.rgb());
}

QString UniqueTheme::nameOf(const QVariant &value) const
{
    switch (value.userType()) {
    case QMetaType::QBrush:
        return nameOf(value.value<QBrush>());
    case QMetaType::QColor:
        return nameOf(value.value<QColor>());
    default:
        return text("unset");
    }
}

QString UniqueTheme::sizeOf(const QFont &font)
{
    for (const FontSize &size : fontSizes) {
        if (font.pointSize() == size.points) {
            return text(size.name);
        }
    }
    return QString::number(font.pointSizeF());
}
