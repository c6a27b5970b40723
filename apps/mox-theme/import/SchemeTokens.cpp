#include "import/SchemeTokens.h"

#include "color/Tones.h"
#include "generator/recipes/ThemeDefinition.h"
#include "import/SeenColors.h"
#include "text/Literals.h"

#include <catalogue/Catalogue.h>
#include <common_utils/Contrast.h>

namespace TARN::ThemeTool {

namespace {

/// A surface that is further from the window than this is of the opposite kind, say a dark tool tip
/// in a light scheme. One foreground serves all surfaces, so such a one cannot be taken over.
constexpr double LargestSurfaceContrast = 3;

/// By how much surfaces are moved at a time, in lightness.
constexpr double SurfaceStep = 0.01;

using Overrides = QMap<QString, QColor>;

bool isSurface(const QString &variable)
{
    return variable.contains("Background"_s);
}

/// Series are seen beneath the foreground, but are no surfaces of the window.
bool isSeries(const QString &variable)
{
    return variable.startsWith("Series"_s);
}

bool isDark(const QColor &background)
{
    return Helpers::contrastRatio(background, Qt::white) >=
           Helpers::contrastRatio(background, Qt::black);
}

QColor withoutAlpha(const QColor &color)
{
    return color.rgb();
}

/// Returns the colours of \a scheme as they are seen on its window.
Overrides opaqueColors(const ColorScheme &scheme)
{
    const QColor window = withoutAlpha(scheme.colors.value("BackgroundColor"_s));
    Overrides colors;
    for (auto color = scheme.colors.cbegin(); color != scheme.colors.cend(); ++color) {
        colors.insert(color.key(), mixed(*color, 1, window));
    }
    colors.insert("BackgroundColor"_s, window);
    return colors;
}

/// Returns the accent as it is seen. A scheme without one has but its text to stand out.
QColor opaqueAccent(const ColorScheme &scheme, const Overrides &colors)
{
    const QColor window = colors.value("BackgroundColor"_s);
    if (scheme.accent.isValid()) {
        return mixed(scheme.accent, 1, window);
    }
    return colors.value("ForegroundColor"_s, window);
}

Overrides surfacesOf(const Overrides &colors)
{
    const QColor window = colors.value("BackgroundColor"_s);
    Overrides surfaces;
    for (auto color = colors.cbegin(); color != colors.cend(); ++color) {
        if (isSurface(color.key()) &&
            Helpers::contrastRatio(*color, window) <= LargestSurfaceContrast) {
            surfaces.insert(color.key(), *color);
        }
    }
    return surfaces;
}

QMap<QString, QString> written(const Overrides &colors)
{
    QMap<QString, QString> texts;
    for (auto color = colors.cbegin(); color != colors.cend(); ++color) {
        texts.insert(color.key(), color->name());
    }
    return texts;
}

bool isLegible(const Tokens &tokens)
{
    return SeenColors(defineTheme(tokens)).illegible().isEmpty();
}

/// Moves the surfaces among the overrides of a theme away from the middle between black and white,
/// where no text is legible.
class SurfaceMover
{
public:
    SurfaceMover(Overrides surfaces, Base base)
        : m_surfaces(std::move(surfaces))
        , m_isDark(base == Base::Dark)
    {
        m_limit = m_isDark ? 0 : 1;
        for (const QColor &surface : qAsConst(m_surfaces)) {
            const double lightness = toOklch(surface).lightness;
            m_limit = m_isDark ? qMax(m_limit, lightness) : qMin(m_limit, lightness);
        }
    }

    /// Moves whatever is nearest to the middle; returns whether there was anywhere to move it.
    bool move()
    {
        m_limit += m_isDark ? -SurfaceStep : SurfaceStep;
        for (QColor &surface : m_surfaces) {
            Oklch tone = toOklch(surface);
            if (m_isDark ? tone.lightness > m_limit : tone.lightness < m_limit) {
                tone.lightness = m_limit;
                surface = toColor(tone);
            }
        }
        return m_limit > 0 && m_limit < 1;
    }

    const Overrides &surfaces() const { return m_surfaces; }

private:
    Overrides m_surfaces;
    bool m_isDark;
    double m_limit;
};

/// Gives \a tokens the \a surfaces, moved as little as a legible theme needs.
void setSurfaces(Tokens &tokens, const Overrides &surfaces)
{
    SurfaceMover mover(surfaces, tokens.base);
    do {
        tokens.colors = written(mover.surfaces());
        if (isLegible(tokens)) {
            return;
        }
    } while (mover.move());
    tokens.colors.clear();
}

/// Returns what \a variable has to meet in a theme. The library shows some text in few places only;
/// applications show it wherever there is other text.
QVector<ContrastDemand> demandsOn(const QString &variable, const SeenColors &seen,
                                  const Tokens &tokens)
{
    QVector<ContrastDemand> demands = seen.demandsOn(variable);
    if (isSeries(variable)) {
        return demands;
    }
    QSet<QString> grounds = seen.groundsOf("ForegroundColor"_s);
    for (const QString &override : tokens.colors.keys()) {
        grounds.insert(override);
    }
    for (const QString &ground : qAsConst(grounds)) {
        // The faces of buttons carry text of their own.
        const bool isFace = ground.startsWith("Button"_s) && !tokens.colors.contains(ground);
        if (isSurface(ground) && !isFace) {
            demands.append({seen.color(ground), Catalogue::textContrast});
        }
    }
    return demands;
}

/// Adds what is seen on the surfaces among \a colors to the overrides of \a tokens, as far as there
/// is a legible tone of it.
void addWhatIsSeen(Tokens &tokens, const Overrides &colors, bool series)
{
    const SeenColors seen(defineTheme(tokens));
    const bool goLighter = (tokens.base == Base::Dark) != series;
    for (auto color = colors.cbegin(); color != colors.cend(); ++color) {
        const QString &variable = color.key();
        if (isSurface(variable) || isSeries(variable) != series) {
            continue;
        }
        const QVector<ContrastDemand> demands = demandsOn(variable, seen, tokens);
        const QColor tone =
            legibleTone(*color, demands, goLighter ? ToneSide::Lighter : ToneSide::Darker);
        if (meets(tone, demands)) {
            tokens.colors.insert(variable, tone.name());
        }
    }
}

/// Leaves to the generator what it cannot make a legible theme of: colours that it derives others
/// from, which are not legible then.
void dropWhatDoesNotFit(Tokens &tokens)
{
    for (;;) {
        const QSet<QString> illegible = SeenColors(defineTheme(tokens)).illegible();
        if (illegible.isEmpty()) {
            return;
        }
        QStringList candidates;
        QStringList guilty;
        for (const QString &variable : tokens.colors.keys()) {
            if (!isSurface(variable)) {
                (illegible.contains(variable) ? guilty : candidates).append(variable);
            }
        }
        if (guilty.isEmpty()) {
            guilty = candidates;
        }
        if (guilty.isEmpty()) {
            return;
        }
        for (const QString &variable : qAsConst(guilty)) {
            tokens.colors.remove(variable);
        }
    }
}

} // namespace

Tokens tokensFrom(const ColorScheme &scheme, const QString &name)
{
    const Overrides colors = opaqueColors(scheme);
    const QColor window = colors.value("BackgroundColor"_s);
    Tokens tokens;
    tokens.name = name;
    tokens.base = isDark(window) ? Base::Dark : Base::Light;
    tokens.accent = opaqueAccent(scheme, colors);
    tokens.neutral = window;
    setSurfaces(tokens, surfacesOf(colors));
    addWhatIsSeen(tokens, colors, false);
    addWhatIsSeen(tokens, colors, true);
    dropWhatDoesNotFit(tokens);
    return tokens;
}

QVector<MovedColor> movedColors(const ColorScheme &scheme, const ThemeDefinition &definition)
{
    Overrides colors = opaqueColors(scheme);
    colors.insert("MainColor"_s, opaqueAccent(scheme, colors));
    const SeenColors seen(definition);
    QVector<MovedColor> moved;
    for (auto color = colors.cbegin(); color != colors.cend(); ++color) {
        const QColor shown = seen.color(color.key());
        if (shown.isValid() && shown.rgb() != color->rgb()) {
            moved.append({color.key(), *color, shown});
        }
    }
    return moved;
}

} // namespace TARN::ThemeTool
