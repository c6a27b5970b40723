#pragma once

#include "generator/tokens/Base.h"

namespace TARN::ThemeTool {

/// What makes a theme dark, light or of high contrast. Tones are lightnesses from 0 to 1.
struct BaseTones
{
    bool isDark;

    // Surfaces, from the window up and down.
    double window;
    double upLevel1;
    double upLevel2;
    double subLevel1;
    double subLevel2;
    double expander;
    double toolTip;

    // What is written into or chosen from.
    double input;
    double inputHover;
    double inputActive;
    double items;
    double alternateItems;
    double groove;

    double tab;
    double tabHover;
    double currentTab;

    double button;
    double buttonHover;
    double buttonPressed;

    // Text, before it is made legible on every surface.
    double text;
    double stressedText;
    double secondaryText;
    double faintText;
    double textOnAccent;

    // Lines: those that only please the eye, and those that tell what a control is.
    double decoration;
    double outline;
    double hoveredOutline;

    /// How much of a hue is in a tinted face: at rest, under the mouse, pressed; from 0 to 1.
    double tint;
    double tintHover;
    double tintPressed;
    double tintChroma; ///< how colourful tints stay, from 0 to 1

    /// How much is left of what is disabled, above the window; from 0 to 1.
    double disabledSurface;
    double disabledText;

    // Contrasts that are kept: of text, of graphics and outlines, of disabled text.
    double textContrast;
    double graphicContrast;
    double disabledContrast;
};

/// Returns the tones of \a base.
const BaseTones &tonesOf(Base base);

} // namespace TARN::ThemeTool
