#include "generator/recipes/BrushRecipes.h"

#include "text/Literals.h"

#include <catalogue/Catalogue.h>
#include <catalogue/Words.h>

#include <QtCore/QHash>

#include <array>

namespace TARN::ThemeTool {

namespace {

/// The colours of one button or input in one state.
struct Face
{
    QString background;
    QString border;
    QString foreground;
};

/// At rest, under the mouse, pressed.
using Faces = std::array<Face, 3>;

const Faces &neutralFaces()
{
    static const Faces faces{{
        {"ButtonBackgroundColor"_s, "ButtonBorderColor"_s, "ButtonForegroundColor"_s},
        {"ButtonHoverBackgroundColor"_s, "ButtonHoverBorderColor"_s,
         "ButtonHoverForegroundColor"_s},
        {"ButtonPressedBackgroundColor"_s, "ButtonBorderColor"_s, "ButtonForegroundColor"_s},
    }};
    return faces;
}

/// Faces that are seen by their line alone until the mouse is over them.
const Faces &outlinedFaces()
{
    static const Faces faces{{
        {"BackgroundColor"_s, "ButtonHoverBorderColor"_s, "ButtonSecondaryForegroundColor"_s},
        {"ButtonHoverBackgroundColor"_s, "ButtonHoverBorderColor"_s,
         "ButtonHoverForegroundColor"_s},
        {"ButtonPressedBackgroundColor"_s, "ButtonHoverBorderColor"_s, "ButtonForegroundColor"_s},
    }};
    return faces;
}

/// Faces that are not seen until the mouse is over them.
Faces bareFaces(const QString &restingText)
{
    const QString none = "ButtonTransparentColor"_s;
    return {{
        {none, none, restingText},
        {"ButtonHoverBackgroundColor"_s, none, "ButtonHoverForegroundColor"_s},
        {"ButtonPressedBackgroundColor"_s, none, "ButtonForegroundColor"_s},
    }};
}

Faces tintedFaces(const QString &hue)
{
    const QString stem = "Button"_s + hue;
    const QString border = stem + "BorderColor"_s;
    const QString text = stem + "TintForegroundColor"_s;
    return {{
        {stem + "TintBackgroundColor"_s, border, text},
        {stem + "TintHoverBackgroundColor"_s, border, text},
        {stem + "TintPressedBackgroundColor"_s, border, text},
    }};
}

Faces fullFaces(const QString &hue)
{
    const QString stem = "Button"_s + hue;
    const auto face = [&](const QString &state) {
        const QString color = stem + state + "BackgroundColor"_s;
        return Face{color, color, stem + "ForegroundColor"_s};
    };
    return {{face(QString()), face("Hover"_s), face("Pressed"_s)}};
}

/// \a faces without the line around them.
Faces unframed(Faces faces)
{
    for (Face &face : faces) {
        face.border = face.background;
    }
    return faces;
}

/// The faces of one kind of buttons: not checked, checked, and the default of its dialog.
struct Kind
{
    Faces unchecked;
    Faces checked;
    Faces isDefault;
};

Kind statusKind(const QString &hue)
{
    return {tintedFaces(hue), fullFaces(hue), fullFaces(hue)};
}

QHash<QString, Kind> buttonKinds()
{
    const QString accent = "Main"_s;
    QHash<QString, Kind> kinds{
        {QString(), {neutralFaces(), tintedFaces(accent), fullFaces(accent)}},
        {"Highlighted"_s, {tintedFaces(accent), fullFaces(accent), fullFaces(accent)}},
        {"Primary"_s, {fullFaces(accent), tintedFaces(accent), fullFaces(accent)}},
        {"Secondary"_s, {outlinedFaces(), tintedFaces(accent), tintedFaces(accent)}},
        {"Tertiary"_s,
         {bareFaces("ButtonMainTintForegroundColor"_s), unframed(tintedFaces(accent)),
          unframed(tintedFaces(accent))}},
        {"Borea"_s,
         {bareFaces("ButtonForegroundColor"_s), unframed(tintedFaces(accent)), outlinedFaces()}},
    };
    for (const QString &status : {"Success"_s, "Warning"_s, "Danger"_s, "Info"_s}) {
        kinds.insert(status, statusKind(status));
    }
    return kinds;
}

/// Toggle buttons of the primary kind are full once they are checked, not before.
QHash<QString, Kind> toggleKinds()
{
    QHash<QString, Kind> kinds = buttonKinds();
    Kind &primary = kinds["Primary"_s];
    std::swap(primary.unchecked, primary.checked);
    return kinds;
}

/// An input's faces at rest and under the mouse. Pressed, and while its list is open, which counts
/// as checked, it looks as every input does that is being used.
Kind inputKind(const Face &resting, const Face &hovered)
{
    const Face active{"InputBackgroundActiveColor"_s, "InputBorderActiveColor"_s,
                      "ForegroundColor"_s};
    const Faces closed{{resting, hovered, active}};
    const Faces open{{active, active, active}};
    return {closed, open, closed};
}

Kind inputKind(const QString &face, const QString &border, const QString &hoveredBorder)
{
    return inputKind({face, border, "InputForegroundColor"_s},
                     {"InputBackgroundHoverColor"_s, hoveredBorder, "ForegroundColor"_s});
}

/// Inputs that stand out by the accent, also from one that merely has the focus.
Kind tintedInputKind()
{
    const QString border = "ButtonMainTintForegroundColor"_s;
    const QString text = "InputTintForegroundColor"_s;
    return inputKind({"ButtonMainTintBackgroundColor"_s, border, text},
                     {"ButtonMainTintHoverBackgroundColor"_s, border, text});
}

QHash<QString, Kind> inputKinds()
{
    const QString face = "InputBackgroundColor"_s;
    const QString quiet = "InputBorderColor"_s;
    const QString clear = "InputBorderHoverColor"_s;
    QHash<QString, Kind> kinds{
        {QString(), inputKind(face, quiet, clear)},
        {"Highlighted"_s, tintedInputKind()},
        {"Primary"_s, tintedInputKind()},
        {"Secondary"_s, inputKind(face, quiet, clear)},
        {"Tertiary"_s, inputKind("BackgroundColor"_s, quiet, clear)},
        {"Borea"_s, inputKind("BackgroundColor"_s, quiet, clear)},
    };
    for (const QString &status : {"Success"_s, "Warning"_s, "Danger"_s, "Info"_s}) {
        const QString color = "Status"_s + status + "Color"_s;
        kinds.insert(status, inputKind(face, color, color));
    }
    return kinds;
}

/// Adds the brushes whose names begin with \a prefix and a kind.
void addKinds(QHash<QString, QString> &brushes, const QString &prefix,
              const QHash<QString, Kind> &kinds)
{
    for (auto kind = kinds.cbegin(); kind != kinds.cend(); ++kind) {
        const std::pair<QString, const Faces &> states[] = {{"Unchecked"_s, kind->unchecked},
                                                            {"Checked"_s, kind->checked},
                                                            {"Default"_s, kind->isDefault}};
        for (const auto &[state, faces] : states) {
            const QString interactions[] = {QString(), "Hover"_s, "Pressed"_s};
            for (std::size_t i = 0; i < faces.size(); ++i) {
                const QString stem = prefix + kind.key() + state + interactions[i];
                brushes.insert(stem + "BackgroundBrush"_s, faces[i].background);
                brushes.insert(stem + "BorderBrush"_s, faces[i].border);
                brushes.insert(stem + "ForegroundBrush"_s, faces[i].foreground);
            }
        }
    }
}

/// The brushes that are not called as a colour is.
QHash<QString, QString> namedBrushes()
{
    return {
        {"CardBorderBrush"_s, "BorderColor"_s},
        {"ListBorderBrush"_s, "BorderColor"_s},
        {"ListBackgroundBrush"_s, "BackgroundSubLevel1Color"_s},
        {"PrioritySecondaryUpLevel1Brush"_s, "PrioritySecondaryColor"_s},
        {"PrioritySecondarySubLevel1Brush"_s, "PrioritySecondaryColor"_s},
        {"SwitchForegroundCheckedEllipseBrush"_s, "ForegroundHighlightedColor"_s},
        {"TabForegroundMouseOverBrush"_s, "ForegroundColor"_s},
    };
}

QHash<QString, QString> allBrushes()
{
    QHash<QString, QString> brushes = namedBrushes();
    addKinds(brushes, "Button"_s, buttonKinds());
    addKinds(brushes, "ToggleButton"_s, toggleKinds());
    addKinds(brushes, "Input"_s, inputKinds());
    return brushes;
}

/// Returns the colour that is called as the brush \a name is.
QString colorOfSameName(const QString &name)
{
    return name.chopped(5) + "Color"_s; // "Brush"
}

} // namespace

QString brushColor(const QString &name)
{
    static const QHash<QString, QString> brushes = allBrushes();
    const auto brush = brushes.constFind(name);
    if (brush != brushes.constEnd()) {
        return *brush;
    }
    if (Catalogue::find("brushes"_s, name)) {
        return colorOfSameName(name);
    }
    const QLatin1String suffix = Words::disabled;
    const QString enabled =
        name.endsWith(suffix) ? brushColor(name.chopped(suffix.size())) : QString();
    return enabled.isEmpty() ? QString() : enabled + suffix;
}

const QVector<QPair<QString, QVector<PaletteRecipe>>> &paletteRecipes()
{
    static const QVector<QPair<QString, QVector<PaletteRecipe>>> recipes{
        {"Surfaces."_s,
         {{"Window", "All", "BackgroundColor"},
          {"Base", "All", "InputBackgroundColor"},
          {"AlternateBase", "All", "ItemViewAlternateBackgroundColor"},
          {"Button", "All", "ButtonBackgroundColor"},
          {"ToolTipBase", "All", "ToolTipBackgroundColor"}}},
        {"Text on them."_s,
         {{"WindowText", "All", "ForegroundColor"},
          {"Text", "All", "ForegroundColor"},
          {"PlaceholderText", "All", "ForegroundPlaceholderColor"},
          {"ButtonText", "All", "ForegroundColor"},
          {"BrightText", "All", "ForegroundUpLevel1Color"},
          {"ToolTipText", "All", "ForegroundColor"},
          {"Link", "All", "ForegroundLinkColor"},
          {"LinkVisited", "All", "ForegroundLinkVisitedColor"}}},
        {"Selection, which the library makes translucent. Inactive windows select more quietly."_s,
         {{"Highlight", "All", "HighlightColor"},
          {"Highlight", "Inactive", "HighlightInactiveColor"},
          {"HighlightedText", "All", "ForegroundHighlightedColor"}}},
        {"Edges, from light to dark. The light one also is what scroll areas show their contents on."_s,
         {{"Light", "All", "BackgroundColor"},
          {"Midlight", "All", "BorderColor"},
          {"Mid", "All", "BackgroundSubLevel1Color"},
          {"Dark", "All", "BackgroundSubLevel2Color"},
          {"Shadow", "All", "ToolTipBorderColor"}}},
    };
    return recipes;
}

} // namespace TARN::ThemeTool
