#include "generator/recipes/BaseTones.h"

namespace TARN::ThemeTool {

namespace {

void keepContrasts(BaseTones &tones, double text, double graphic, double disabled)
{
    tones.textContrast = text;
    tones.graphicContrast = graphic;
    tones.disabledContrast = disabled;
}

BaseTones darkTones()
{
    BaseTones tones{};
    tones.isDark = true;

    tones.window = 0.270;
    tones.upLevel1 = 0.330;
    tones.upLevel2 = 0.375;
    tones.subLevel1 = 0.245;
    tones.subLevel2 = 0.222;
    tones.expander = 0.305;
    tones.toolTip = 0.365;

    tones.input = 0.208;
    tones.inputHover = 0.245;
    tones.inputActive = 0.185;
    tones.items = 0.218;
    tones.alternateItems = 0.240;
    tones.groove = 0.215;

    tones.tab = 0.245;
    tones.tabHover = 0.290;
    tones.currentTab = 0.320;

    tones.button = 0.355;
    tones.buttonHover = 0.405;
    tones.buttonPressed = 0.310;

    tones.text = 0.940;
    tones.stressedText = 1.0;
    tones.secondaryText = 0.840;
    tones.faintText = 0.700;
    tones.textOnAccent = 0.130;

    tones.decoration = 0.395;
    tones.outline = 0.560;
    tones.hoveredOutline = 0.680;

    tones.tint = 0.17;
    tones.tintHover = 0.25;
    tones.tintPressed = 0.09;
    tones.tintChroma = 0.9;

    tones.disabledSurface = 0.45;
    tones.disabledText = 0.50;

    keepContrasts(tones, 4.5, 3.0, 2.4);
    return tones;
}

BaseTones lightTones()
{
    BaseTones tones{};
    tones.isDark = false;

    tones.window = 0.957;
    tones.upLevel1 = 0.985;
    tones.upLevel2 = 0.900;
    tones.subLevel1 = 0.932;
    tones.subLevel2 = 0.908;
    tones.expander = 0.934;
    tones.toolTip = 1.0;

    tones.input = 1.0;
    tones.inputHover = 0.968;
    tones.inputActive = 1.0;
    tones.items = 1.0;
    tones.alternateItems = 0.978;
    tones.groove = 0.908;

    tones.tab = 0.922;
    tones.tabHover = 0.950;
    tones.currentTab = 0.985;

    tones.button = 0.990;
    tones.buttonHover = 0.928;
    tones.buttonPressed = 0.880;

    tones.text = 0.295;
    tones.stressedText = 0.170;
    tones.secondaryText = 0.400;
    tones.faintText = 0.520;
    tones.textOnAccent = 1.0;

    tones.decoration = 0.845;
    tones.outline = 0.640;
    tones.hoveredOutline = 0.520;

    tones.tint = 0.15;
    tones.tintHover = 0.24;
    tones.tintPressed = 0.35;
    tones.tintChroma = 1.0;

    tones.disabledSurface = 0.50;
    tones.disabledText = 0.50;

    keepContrasts(tones, 4.5, 3.0, 2.2);
    return tones;
}

BaseTones highContrastTones()
{
    BaseTones tones{};
    tones.isDark = true;

    tones.window = 0.0;
    tones.upLevel1 = 0.250;
    tones.upLevel2 = 0.330;
    tones.subLevel1 = 0.220;
    tones.subLevel2 = 0.0;
    tones.expander = 0.250;
    tones.toolTip = 0.0;

    tones.input = 0.0;
    tones.inputHover = 0.250;
    tones.inputActive = 0.0;
    tones.items = 0.0;
    tones.alternateItems = 0.210;
    tones.groove = 0.240;

    tones.tab = 0.0;
    tones.tabHover = 0.270;
    tones.currentTab = 0.220;

    tones.button = 0.0;
    tones.buttonHover = 0.330;
    tones.buttonPressed = 0.230;

    tones.text = 1.0;
    tones.stressedText = 1.0;
    tones.secondaryText = 0.950;
    tones.faintText = 0.860;
    tones.textOnAccent = 0.0;

    // Every frame is seen.
    tones.decoration = 0.660;
    tones.outline = 0.880;
    tones.hoveredOutline = 1.0;

    tones.tint = 0.20;
    tones.tintHover = 0.32;
    tones.tintPressed = 0.12;
    tones.tintChroma = 1.0;

    tones.disabledSurface = 0.30;
    tones.disabledText = 0.58;

    keepContrasts(tones, 7.0, 4.5, 3.0);
    return tones;
}

} // namespace

const BaseTones &tonesOf(Base base)
{
    static const BaseTones dark = darkTones();
    static const BaseTones light = lightTones();
    static const BaseTones highContrast = highContrastTones();
    switch (base) {
    case Base::Light:
        return light;
    case Base::HighContrast:
        return highContrast;
    case Base::Dark:
        break;
    }
    return dark;
}

} // namespace TARN::ThemeTool
