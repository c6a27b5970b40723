#include "color/Tones.h"
#include "compare/Differences.h"
#include "text/Literals.h"

#include <catalogue/Catalogue.h>
#include <catalogue/Words.h>
#include <common_utils/Contrast.h>

#include <algorithm>

namespace TARN::ThemeTool {

namespace {

/// A text and what it is seen on: sections and names of theme values.
struct TextPair
{
    QString text;
    QString surface;
    double demand = Catalogue::textContrast;
};

/// A contrast with the colours that make it.
struct Seen
{
    QRgb text = 0;
    QRgb surface = 0;
    double contrast = 0;
};

/// Returns the section and the name of the theme value that the catalogue calls \a surface.
QString surfaceValue(const QString &surface)
{
    if (surface.startsWith("palette/"_s)) {
        return surface + "/Active"_s;
    }
    const bool isBrush = Catalogue::find("brushes"_s, surface) != nullptr;
    return (isBrush ? "brushes/"_s : "colors/"_s) + surface;
}

/// Returns what lies under a disabled text where \a surface lies under the enabled one. Empty for
/// the palette's surfaces, whose disabled colours are none of the theme's.
QString disabledSurfaceValue(const QString &surface)
{
    if (surface.startsWith("palette/"_s)) {
        return {};
    }
    const QString value = surfaceValue(surface);
    const Variable *variable = Catalogue::find(value.section(QLatin1Char('/'), 0, 0), surface);
    return variable && variable->hasDisabledTwin ? value + Words::disabled : value;
}

QVector<TextPair> textPairs()
{
    QVector<TextPair> pairs;
    for (const Variable &variable : Catalogue::variables()) {
        if (variable.role != VariableRole::Text) {
            continue;
        }
        const QString text = variable.group + "/"_s + variable.name;
        for (const QString &surface : variable.surfaces) {
            pairs.append({text, surfaceValue(surface), Catalogue::textContrast});
            if (variable.hasDisabledTwin) {
                pairs.append({text + Words::disabled, disabledSurfaceValue(surface),
                              Catalogue::disabledTextContrast});
            }
        }
    }
    for (const PaletteText &text : Catalogue::paletteTexts()) {
        for (const QString &surface : text.surfaces) {
            pairs.append({"palette/"_s + text.role + "/Active"_s, surfaceValue(surface),
                          Catalogue::textContrast});
        }
    }
    return pairs;
}

/// Returns the brush of the value \a path, a section and a name; none when it is no plain colour.
QColor plainColor(const ThemeValues &values, const QString &path)
{
    const ThemeValue *value =
        values.find(path.section(QLatin1Char('/'), 0, 0), path.section(QLatin1Char('/'), 1));
    const bool isPlain = value && value->brush.style() == Qt::SolidPattern;
    return isPlain ? value->brush.color() : QColor();
}

/// Returns how \a pair is seen; none when the theme lacks one of the two or paints a gradient.
std::optional<Seen> seen(const TextPair &pair, const ThemeValues &values)
{
    const QColor text = plainColor(values, pair.text);
    const QColor surface = plainColor(values, pair.surface);
    if (!text.isValid() || !surface.isValid()) {
        return std::nullopt;
    }
    const QColor window = plainColor(values, "colors/BackgroundColor"_s);
    const QColor ground = mixed(surface, 1, window.isValid() ? window : surface);
    const QColor ink = mixed(text, 1, ground);
    return Seen{ink.rgb(), ground.rgb(), Helpers::contrastRatio(ink, ground)};
}

QString nameOf(const QString &path)
{
    return path.startsWith("palette/"_s) ? path.section(QLatin1Char('/'), 0, 1)
                                         : path.section(QLatin1Char('/'), 1);
}

} // namespace

QVector<ContrastChange> contrastChanges(const ThemeValues &before, const ThemeValues &after)
{
    QVector<ContrastChange> changes;
    QVector<QPair<Seen, Seen>> colors;
    for (const TextPair &pair : textPairs()) {
        const auto was = seen(pair, before);
        const auto is = seen(pair, after);
        if (!was || !is || (was->contrast < pair.demand) == (is->contrast < pair.demand)) {
            continue;
        }
        const auto *const alike =
            std::find_if(colors.cbegin(), colors.cend(), [&](const auto &other) {
                return other.first.text == was->text && other.first.surface == was->surface &&
                       other.second.text == is->text && other.second.surface == is->surface;
            });
        if (alike != colors.cend()) {
            ++changes[static_cast<int>(alike - colors.cbegin())].others;
            continue;
        }
        colors.append({*was, *is});
        changes.append(
            {nameOf(pair.text), nameOf(pair.surface), was->contrast, is->contrast, pair.demand, 0});
    }
    std::stable_sort(changes.begin(), changes.end(),
                     [](const ContrastChange &one, const ContrastChange &other) {
                         return qAbs(one.after - one.before) > qAbs(other.after - other.before);
                     });
    return changes;
}

} // namespace TARN::ThemeTool
