#include "generator/recipes/RecipeList.h"
#include "text/Literals.h"

namespace TARN::ThemeTool {

namespace {

/// A hue in which buttons come, and the colour variable that it is taken from.
struct ButtonHue
{
    const char *word;
    const char *source;
};

constexpr ButtonHue hues[] = {
    {"Main", "MainColor"},
    {"Success", "StatusSuccessColor"},
    {"Warning", "StatusWarningColor"},
    {"Danger", "StatusDangerColor"},
    {"Info", "StatusInfoColor"},
};

// Faces that highlighted inputs share with buttons.
constexpr char inputTints[] = "ButtonMainTintBackgroundColor ButtonMainTintHoverBackgroundColor";

enum class Interaction { None, Hover, Pressed };

/// Returns by how many hundredths of lightness a full face of the lightness \a lightness moves.
/// Dark themes light it up under the mouse and sink it when pressed, light ones darken it further
/// and further, which also keeps it away from the text on it. Faces without room for that move the
/// other way; from black by more, since screens show hardly any difference there.
double stepOf(Interaction interaction, double lightness, bool isDark)
{
    constexpr double nearWhite = 0.95;
    constexpr double nearBlack = 0.2;
    if (interaction == Interaction::None) {
        return 0;
    }
    const bool hovered = interaction == Interaction::Hover;
    if (isDark && lightness <= nearWhite) {
        return hovered ? 5 : -6;
    }
    if (!isDark && lightness < nearBlack) {
        return hovered ? 22 : 32;
    }
    return hovered ? -5 : -10;
}

QColor fullFace(const Scheme &scheme, const char *source, Interaction interaction)
{
    const QColor color = scheme[source];
    const double steps = stepOf(interaction, toOklch(color).lightness, scheme.tones().isDark);
    return legibleTone(lightened(color, steps),
                       scheme.demands("ForegroundHighlightedColor", scheme.tones().textContrast));
}

QColor tintedFace(const Scheme &scheme, const char *source, double strength)
{
    const QColor hue = saturated(scheme[source], scheme.tones().tintChroma);
    return mixed(hue, strength, scheme["BackgroundColor"]);
}

/// The colours of one hue: full faces, tinted ones, and the text on both.
void addHue(RecipeList &list, const ButtonHue &hue)
{
    const char *const source = hue.source;
    const QString stem = "Button"_s + QLatin1String(hue.word);
    list.addSurface(stem + "BackgroundColor"_s, [=](const Scheme &scheme) {
        return fullFace(scheme, source, Interaction::None);
    });
    list.addSurface(stem + "HoverBackgroundColor"_s, [=](const Scheme &scheme) {
        return fullFace(scheme, source, Interaction::Hover);
    });
    list.addSurface(stem + "PressedBackgroundColor"_s, [=](const Scheme &scheme) {
        return fullFace(scheme, source, Interaction::Pressed);
    });
    const QString full = stem + "BackgroundColor "_s + stem + "HoverBackgroundColor "_s + stem +
                         "PressedBackgroundColor"_s;
    list.addText(
        stem + "ForegroundColor"_s,
        [](const Scheme &scheme) { return scheme["ForegroundHighlightedColor"]; }, full);

    const QString tints = stem + "TintBackgroundColor "_s + stem + "TintHoverBackgroundColor "_s +
                          stem + "TintPressedBackgroundColor"_s;
    const QByteArray textSurfaces = (tints + " BackgroundColor"_s).toLatin1();
    list.addSurface(stem + "TintBackgroundColor"_s, [=](const Scheme &scheme) {
        return tintedFace(scheme, source, scheme.tones().tint);
    });
    list.addSurface(stem + "TintHoverBackgroundColor"_s, [=](const Scheme &scheme) {
        return tintedFace(scheme, source, scheme.tones().tintHover);
    });
    list.addSurface(stem + "TintPressedBackgroundColor"_s, [=](const Scheme &scheme) {
        return tintedFace(scheme, source, scheme.tones().tintPressed);
    });
    list.addLine(stem + "BorderColor"_s, [=](const Scheme &scheme) { return scheme[source]; });
    list.addText(
        stem + "TintForegroundColor"_s,
        [=](const Scheme &scheme) {
            return legibleTone(scheme[source],
                               scheme.demands(textSurfaces, scheme.tones().textContrast));
        },
        QString::fromLatin1(textSurfaces));
}

} // namespace

void addButtonRecipes(RecipeList &list)
{
    list.begin(
        "Buttons. The plain faces belong to ordinary buttons; each hue comes as a full face, "
        "for what is the default or checked, and as a tinted one.");
    list.addSurface("ButtonBackgroundColor",
                    [](const Scheme &scheme) { return scheme.neutral(scheme.tones().button); });
    list.addSurface("ButtonHoverBackgroundColor", [](const Scheme &scheme) {
        return scheme.neutral(scheme.tones().buttonHover);
    });
    list.addSurface("ButtonPressedBackgroundColor", [](const Scheme &scheme) {
        return scheme.neutral(scheme.tones().buttonPressed);
    });
    const QString faces = "ButtonBackgroundColor ButtonHoverBackgroundColor "
                          "ButtonPressedBackgroundColor BackgroundColor"_s;
    for (const auto &[name, source] :
         {std::pair{"ButtonForegroundColor", "ForegroundColor"},
          std::pair{"ButtonHoverForegroundColor", "ForegroundUpLevel1Color"},
          std::pair{"ButtonSecondaryForegroundColor", "ForegroundSubLevel1Color"}}) {
        const QByteArray surfaces = faces.toLatin1();
        const char *const wanted = source;
        list.addText(
            QString::fromLatin1(name),
            [=](const Scheme &scheme) {
                return legibleTone(scheme[wanted],
                                   scheme.demands(surfaces, scheme.tones().textContrast));
            },
            faces);
    }
    list.addSurface("ButtonTransparentColor",
                    [](const Scheme &) { return QColor(Qt::transparent); });
    for (const ButtonHue &hue : hues) {
        addHue(list, hue);
    }
    list.addText(
        "InputTintForegroundColor",
        [](const Scheme &scheme) {
            return legibleTone(scheme["ForegroundColor"],
                               scheme.demands(inputTints, scheme.tones().textContrast));
        },
        inputTints);
}

} // namespace TARN::ThemeTool
