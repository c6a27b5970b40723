#include "support/themes/UniqueTheme.h"

#include <support/Text.h>
#include <support/Variables.h>
#include <support/themes/CatalogueNames.h>

namespace {

struct FontSize
{
    const char *name;
    int points;
};

constexpr FontSize fontSizes[] = {{"small", 7}, {"base", 9}, {"medium", 12}, {"large", 15}};

} // namespace

UniqueTheme::UniqueTheme()
{
    visitBrushesAndColors([this](const QString &group, const QString &name) { add(group, name); });
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

void UniqueTheme::add(const QString &group, const QString &name)
{
    const int number = m_names.size() + 1;
    const QColor color(0x40, number / 0x100, number % 0x100);
    if (group == text("brushes")) {
        m_brushes.insert(name, QBrush(color));
    } else {
        m_colors.insert(name, color);
    }
    m_names.insert(color.rgb(), name);
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
