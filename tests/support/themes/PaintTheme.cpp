#include "support/themes/PaintTheme.h"

#include <QtCore/QSet>
#include <QtCore/QStringList>
#include <QtCore/QVariantMap>
#include <QtGui/QBrush>
#include <QtGui/QFont>

#include <support/Text.h>
#include <support/Variables.h>
#include <support/themes/CatalogueNames.h>

PaintTheme::PaintTheme()
    : PaintTheme(Radii())
{
}

PaintTheme::PaintTheme(const Radii &radii)
{
    QVariantMap brushes;
    QVariantMap colors;
    const auto add = [&](const QString &group, const QString &name) {
        // Multiples of seven are never the result of mixing two others by a pixel's rounding.
        const int number = m_names.size() + 1;
        const QColor color(0x10 + number % 13 * 18, 0x10 + number / 13 % 13 * 18,
                           0x10 + number / 169 % 13 * 18);
        m_names.insert(color.rgb(), name);
        if (group == text("brushes")) {
            m_brushes.insert(name, color);
            brushes.insert(name, QBrush(color));
        } else {
            m_colors.insert(name, color);
            colors.insert(name, color);
        }
    };
    visitBrushesAndColors(add);
    const QFont font(text("DejaVu Sans"), 9);
    publishVariables({{text("brushes"), brushes},
                      {text("colors"), colors},
                      {text("fonts"), QVariantMap{{text("small"), font},
                                                  {text("base"), font},
                                                  {text("medium"), font},
                                                  {text("large"), font}}},
                      {text("opacities"), QVariantMap{{text("RubberBandOpacity"), 1.0}}},
                      {text("cornerRadius"), QVariantMap{{text("SmallSize"), radii.small},
                                                         {text("BaseSize"), radii.base},
                                                         {text("MediumSize"), radii.medium},
                                                         {text("LargeSize"), radii.large}}}});
}

QColor PaintTheme::brush(const QString &name) const
{
    return m_brushes.value(name);
}

QColor PaintTheme::color(const QString &name) const
{
    return m_colors.value(name);
}

QString PaintTheme::nameOf(const QColor &color) const
{
    return m_names.value(color.rgb());
}

QString PaintTheme::nameAt(const QImage &picture, const QPoint &pixel) const
{
    return nameOf(picture.pixelColor(pixel));
}

QString PaintTheme::nameNear(const QImage &picture, const QPoint &pixel) const
{
    // Less than half of what any two colours differ by in a channel.
    constexpr int trace = 8;
    const QRgb color = picture.pixel(pixel);
    for (auto name = m_names.cbegin(); name != m_names.cend(); ++name) {
        if (qAbs(qRed(name.key()) - qRed(color)) <= trace &&
            qAbs(qGreen(name.key()) - qGreen(color)) <= trace &&
            qAbs(qBlue(name.key()) - qBlue(color)) <= trace) {
            return name.value();
        }
    }
    return {};
}

bool PaintTheme::shows(const QImage &picture, const QString &name) const
{
    return namesIn(picture).contains(name);
}

QStringList PaintTheme::namesIn(const QImage &picture) const
{
    QSet<QString> names;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QString name = nameAt(picture, {x, y});
            if (!name.isEmpty()) {
                names.insert(name);
            }
        }
    }
    QStringList sorted(names.cbegin(), names.cend());
    sorted.sort();
    return sorted;
}
