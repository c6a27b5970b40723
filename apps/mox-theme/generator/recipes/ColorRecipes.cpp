#include "generator/recipes/RecipeList.h"
#include "generator/recipes/Scheme.h"

#include <common_utils/Contrast.h>

#include <algorithm>

namespace TARN::ThemeTool {

namespace {

constexpr char window[] = "BackgroundColor";

// What any text of a window may lie on.
constexpr char textSurfaces[] =
    "BackgroundColor BackgroundUpLevel1Color BackgroundSubLevel1Color BackgroundSubLevel2Color "
    "ExpanderHeaderColor InputBackgroundColor InputBackgroundHoverColor InputBackgroundActiveColor "
    "ControlBackgroundColor ItemViewBackgroundColor ItemViewAlternateBackgroundColor "
    "TabBackgroundColor TabBorderMouseOverColor TabBackgroundActiveColor GrooveBackgroundColor "
    "ButtonBackgroundColor ToolTipBackgroundColor";
constexpr char inputSurfaces[] =
    "InputBackgroundColor InputBackgroundHoverColor InputBackgroundActiveColor "
    "ControlBackgroundColor BackgroundColor";
// Where the accent itself is read; elsewhere it is a graphic, or the ground of other text.
constexpr char accentTextSurfaces[] =
    "BackgroundSubLevel1Color InputBackgroundColor ControlBackgroundColor";
constexpr char accentSurfaces[] =
    "BackgroundColor BackgroundUpLevel1Color TabBackgroundActiveColor GrooveBackgroundColor";
constexpr char texts[] = "ForegroundSubLevel1Color ForegroundUpLevel1Color";

/// Painters round what is mixed in ways of their own.
constexpr double roundingMargin = 0.1;

using ToneOf = double BaseTones::*;

/// The neutral surface of the lightness \a tone.
auto surface(ToneOf tone)
{
    return [tone](const Scheme &scheme) { return scheme.neutral(scheme.tones().*tone); };
}

/// Text of the lightness \a tone that is legible on every surface.
auto text(ToneOf tone)
{
    return [tone](const Scheme &scheme) {
        return legibleTone(scheme.neutral(scheme.tones().*tone),
                           scheme.demands(textSurfaces, scheme.tones().textContrast));
    };
}

/// \a color of the scheme itself, or a tone of it that is legible on every surface.
auto legible(const char *color)
{
    return [color](const Scheme &scheme) {
        return legibleTone(scheme[color],
                           scheme.demands(textSurfaces, scheme.tones().textContrast));
    };
}

/// Coloured text that is legible on every surface.
auto coloredText(double hue, double chroma, double darkBaseLightness, double lightBaseLightness)
{
    return [=](const Scheme &scheme) {
        const double lightness = scheme.tones().isDark ? darkBaseLightness : lightBaseLightness;
        return legibleTone(toColor({lightness, chroma, hue}),
                           scheme.demands(textSurfaces, scheme.tones().textContrast));
    };
}

/// A line around inputs and controls of the lightness \a tone.
auto outline(ToneOf tone)
{
    return [tone](const Scheme &scheme) {
        return legibleTone(scheme.neutral(scheme.tones().*tone),
                           scheme.demands(inputSurfaces, scheme.tones().graphicContrast));
    };
}

/// A step of the accent by hundredths of lightness, away from the window when positive.
QColor accentStep(const Scheme &scheme, double steps)
{
    return lightened(scheme["MainColor"], scheme.tones().isDark ? steps : -steps);
}

QVector<ContrastDemand> demandsOfTextOnAccent(const Scheme &scheme)
{
    return scheme.demands("ForegroundHighlightedColor", scheme.tones().textContrast);
}

/// The accent: legible as text itself, and a ground for text.
QColor mainColor(const Scheme &scheme)
{
    return legibleTone(scheme.accent(), scheme.demands(textSurfaces, scheme.tones().textContrast) +
                                            demandsOfTextOnAccent(scheme));
}

/// Text that shines through, as faint as it may be on inputs. Not a fainter tone: disabled, dark
/// text becomes much lighter, and so would vanish.
QColor placeholderColor(const Scheme &scheme)
{
    constexpr double mostFaint = 0.6;
    constexpr double step = 0.01;
    const QColor text = scheme["ForegroundColor"];
    const QVector<ContrastDemand> demands =
        scheme.demands(inputSurfaces, scheme.tones().textContrast + roundingMargin);
    const auto isLegible = [&](double opacity) {
        return std::all_of(demands.cbegin(), demands.cend(), [&](const ContrastDemand &demand) {
            return meets(mixed(text, opacity, demand.ground), {demand});
        });
    };
    double opacity = mostFaint;
    while (opacity < 1 && !isLegible(opacity)) {
        opacity += step;
    }
    QColor color = text;
    color.setAlphaF(qMin(1.0, opacity));
    return color;
}

/// The accent as a link. Deep on light surfaces, for disabled dark text is much lighter than text.
QColor linkColor(const Scheme &scheme)
{
    constexpr double deeper = 12;
    const QColor link = scheme.tones().isDark ? scheme["MainColor"] : accentStep(scheme, deeper);
    return legibleTone(link, scheme.demands(textSurfaces, scheme.tones().textContrast));
}

/// The accent for what is selected in a view without the focus.
QColor quietMainColor(const Scheme &scheme)
{
    return legibleTone(saturated(accentStep(scheme, -7), 0.45), demandsOfTextOnAccent(scheme));
}

/// The library paints the highlight of the palette 60 % opaque. Returns the colour nearest to
/// \a wanted on whose mixture with the ground of inputs highlighted text is legible.
QColor highlightTone(const Scheme &scheme, const QColor &wanted)
{
    constexpr double opacity = 0.6;
    constexpr double lightnessStep = 0.005;
    constexpr int chromaSteps = 8;
    const double contrast = scheme.tones().textContrast + roundingMargin;
    const QColor highlightedText = scheme["ForegroundHighlightedColor"];
    const Oklch start = toOklch(wanted);
    const double direction = scheme.tones().isDark ? lightnessStep : -lightnessStep;
    for (int step = chromaSteps; step >= 0; --step) {
        const double chroma = start.chroma * step / chromaSteps;
        for (double lightness = start.lightness; lightness >= 0 && lightness <= 1;
             lightness += direction) {
            QColor tone = toColor({lightness, chroma, start.hue});
            const QColor seen = mixed(tone, opacity, scheme["InputBackgroundColor"]);
            if (Helpers::contrastRatio(highlightedText, seen) >= contrast) {
                return tone;
            }
        }
    }
    return scheme.tones().isDark ? Qt::white : Qt::black;
}

/// A ground for coloured cells, on which text is legible.
auto cell(double hue, double chroma, double darkBaseLightness, double lightBaseLightness)
{
    return [=](const Scheme &scheme) {
        const double lightness = scheme.tones().isDark ? darkBaseLightness : lightBaseLightness;
        return legibleTone(toColor({lightness, chroma, hue}),
                           scheme.demands(texts, scheme.tones().textContrast));
    };
}

void addSurfaces(RecipeList &list)
{
    list.begin("Surfaces. BackgroundColor is the window; UpLevel steps lie above it (cards, lines "
               "of cards), SubLevel steps below it (menus, status bar and headers, then the menu "
               "bar).");
    list.addSurface(window, surface(&BaseTones::window));
    list.addSurface("BackgroundUpLevel1Color", surface(&BaseTones::upLevel1));
    list.addSurface("BackgroundUpLevel2Color", surface(&BaseTones::upLevel2));
    list.addSurface("BackgroundSubLevel1Color", surface(&BaseTones::subLevel1));
    list.addSurface("BackgroundSubLevel2Color", surface(&BaseTones::subLevel2));
    list.addSurface("ExpanderHeaderColor", surface(&BaseTones::expander));
    list.addSurface("GrooveBackgroundColor", surface(&BaseTones::groove));
}

void addAccent(RecipeList &list)
{
    list.begin(
        "The accent, on which highlighted text is legible. UpLevel1 is its text on surfaces, "
        "SubLevel1 is for what is selected in a view without the focus.");
    list.addText("MainColor", mainColor, accentTextSurfaces);
    list.addText("MainUpLevel1Color", legible("MainColor"), textSurfaces);
    list.addSurface("MainSubLevel1Color", quietMainColor);
    list.addSurface("HighlightColor", [](const Scheme &scheme) {
        return highlightTone(scheme, scheme["MainColor"]);
    });
    list.addSurface("HighlightInactiveColor", [](const Scheme &scheme) {
        return highlightTone(scheme, scheme["MainSubLevel1Color"]);
    });
}

void addText(RecipeList &list)
{
    list.begin(
        "Text and icons. UpLevel1 is stressed text, SubLevel1 secondary text. "
        "ForegroundDisabledColor is faint text of enabled widgets, such as subtitles, and the "
        "handles of scroll bars; ForegroundHighlightedColor stands on the accent.");
    list.addText("ForegroundColor", text(&BaseTones::text), textSurfaces);
    list.addText("ForegroundUpLevel1Color", text(&BaseTones::stressedText), textSurfaces);
    list.addText("ForegroundSubLevel1Color", text(&BaseTones::secondaryText), textSurfaces);
    list.addText("ForegroundDisabledColor", text(&BaseTones::faintText), textSurfaces);
    list.addText("ForegroundPlaceholderColor", placeholderColor, textSurfaces);
    list.addText("ForegroundMouseOverColor", legible("MainColor"), textSurfaces);
    list.addText("ForegroundLinkColor", linkColor, textSurfaces);
    list.addText("ForegroundLinkVisitedColor", coloredText(305, 0.12, 0.76, 0.36), textSurfaces);
    list.addText("ForegroundHighlightedColor", surface(&BaseTones::textOnAccent),
                 "MainColor MainSubLevel1Color");
    list.addText("InputForegroundColor", text(&BaseTones::text), textSurfaces);
}

void addLines(RecipeList &list)
{
    list.begin("Lines: frames of cards, lists and groups, and the stronger lines around inputs and "
               "controls.");
    list.addLine("BorderColor", surface(&BaseTones::decoration));
    list.addLine("InputBorderColor", outline(&BaseTones::outline));
    list.addLine("InputBorderHoverColor", outline(&BaseTones::hoveredOutline));
    list.addLine("InputBorderActiveColor", legible("MainColor"));
    list.addLine("ControlBorderColor", outline(&BaseTones::hoveredOutline));
    list.addLine("ButtonBorderColor", surface(&BaseTones::decoration));
    list.addLine("ButtonHoverBorderColor", outline(&BaseTones::outline));
    list.addLine("ToolTipBorderColor", surface(&BaseTones::decoration));
    list.addLine("PrioritySecondaryColor", outline(&BaseTones::outline));
}

void addInputs(RecipeList &list)
{
    list.begin("Inputs, controls, lists and tabs.");
    list.addSurface("InputBackgroundColor", surface(&BaseTones::input));
    list.addSurface("InputBackgroundHoverColor", surface(&BaseTones::inputHover));
    list.addSurface("InputBackgroundActiveColor", surface(&BaseTones::inputActive));
    list.addSurface("ControlBackgroundColor", surface(&BaseTones::input));
    list.addLine("SwitchEllipseColor", outline(&BaseTones::hoveredOutline));
    list.addSurface("ItemViewBackgroundColor", surface(&BaseTones::items));
    list.addSurface("ItemViewAlternateBackgroundColor", surface(&BaseTones::alternateItems));
    list.addSurface("TabBackgroundColor", surface(&BaseTones::tab));
    list.addSurface("TabBorderMouseOverColor", surface(&BaseTones::tabHover));
    list.addSurface("TabBackgroundActiveColor", surface(&BaseTones::currentTab));
    list.addSurface("ToolTipBackgroundColor", surface(&BaseTones::toolTip));
    list.addLine("SliderThumbNailHoverColor", legible("MainColor"));
    list.addLine("SliderThumbNailPressedColor", [](const Scheme &scheme) {
        return legibleTone(accentStep(scheme, 8),
                           scheme.demands(textSurfaces, scheme.tones().textContrast));
    });

    list.begin("The grooves of sliders that lie on pictures.");
    list.addSurface("HighContrastBackgroundColor", [](const Scheme &scheme) {
        return scheme.neutral(scheme.tones().isDark ? 0.1 : 1);
    });
    list.addLine("HighContrastBorderColor", [](const Scheme &scheme) {
        return scheme.neutral(scheme.tones().isDark ? 0.98 : 0.2);
    });
}

// Chosen so that eyes that tell fewer hues apart still see which is which: most pairs differ in
// lightness as well as in hue.
void addStatus(RecipeList &list)
{
    list.begin("Status.");
    list.addText("StatusSuccessColor", coloredText(150, 0.13, 0.85, 0.37), textSurfaces);
    list.addText("StatusWarningColor", coloredText(74, 0.13, 0.81, 0.51), textSurfaces);
    list.addText("StatusDangerColor", coloredText(18, 0.18, 0.74, 0.44), textSurfaces);
    list.addText("StatusInfoColor", coloredText(214, 0.07, 0.92, 0.43), textSurfaces);
    list.addSurface("StatusConfigColor", cell(225, 0.07, 0.44, 0.84));
}

void addSeries(RecipeList &list)
{
    list.begin("Series of charts and categories of cells, on which text is legible. Neighbours "
               "differ in hue and in lightness.");
    list.addSurface("Series01Color", cell(250, 0.11, 0.40, 0.86));
    list.addSurface("Series02Color", cell(50, 0.10, 0.42, 0.82));
    list.addSurface("Series03Color", cell(155, 0.08, 0.41, 0.90));
    list.addSurface("Series04Color", cell(303, 0.12, 0.42, 0.84));
    list.addSurface("Series05Color", cell(88, 0.08, 0.36, 0.89));
    list.addSurface("Series06Color", cell(202, 0.08, 0.44, 0.87));
    list.addSurface("Series07Color", cell(13, 0.12, 0.40, 0.81));
    list.addSurface("Series08Color", cell(275, 0.13, 0.38, 0.90));
    list.addSurface("Series09Color", cell(120, 0.09, 0.41, 0.81));
    list.addSurface("Series10Color", cell(345, 0.11, 0.36, 0.91));
    list.addSurface("Series11Color", cell(250, 0.015, 0.44, 0.81));
}

} // namespace

const QVector<ColorRecipe> &colorRecipes()
{
    static const QVector<ColorRecipe> recipes = [] {
        RecipeList list;
        addAccent(list);
        addSurfaces(list);
        addText(list);
        addLines(list);
        addStatus(list);
        addSeries(list);
        addInputs(list);
        addButtonRecipes(list);
        return list.recipes();
    }();
    return recipes;
}

const ColorRecipe *findColorRecipe(const QString &name)
{
    static const QHash<QString, const ColorRecipe *> index = [] {
        QHash<QString, const ColorRecipe *> all;
        for (const ColorRecipe &recipe : colorRecipes()) {
            all.insert(recipe.name, &recipe);
        }
        return all;
    }();
    return index.value(name);
}

} // namespace TARN::ThemeTool
