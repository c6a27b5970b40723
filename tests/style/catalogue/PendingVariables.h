#pragma once

/// Variables that no code asks for yet, for the painting that will is not written. Whoever writes
/// it takes them out of here.
constexpr const char *pendingVariables[] = {
    "brushes/BackgroundSubLevel2Brush",
    "brushes/BackgroundUpLevel1Brush",
    "brushes/ControlBackgroundBrush",
    "brushes/ControlBorderBrush",
    "brushes/HighContrastBackgroundBrush",
    "brushes/HighContrastBorderBrush",
    "brushes/InputBackgroundActiveBrush",
    "brushes/InputBorderActiveBrush",
    "brushes/ItemViewAlternateBackgroundBrush",
    "brushes/MainSubLevel1Brush",
    "brushes/PrioritySecondarySubLevel1Brush",
    "brushes/SwitchEllipseBrush",
    "brushes/SwitchForegroundCheckedEllipseBrush",
    "brushes/TabBackgroundActiveBrush",
    "brushes/TabBackgroundBrush",
    "brushes/TabBorderMouseOverBrush",
    "brushes/TabForegroundMouseOverBrush",
    "colors/BackgroundColor",
    "colors/BackgroundUpLevel2Color",
    "colors/MainUpLevel1Color",
    "colors/StatusDangerColor",
    "opacities/RubberBandOpacity",
};

/// Variables that are asked for, but their disabled twins not yet.
constexpr const char *pendingTwins[] = {
    "brushes/BackgroundSubLevel1Brush",
    "brushes/GrooveBackgroundBrush",
    "colors/BackgroundUpLevel1Color",
    "colors/ForegroundColor",
    "colors/MainColor",
};
