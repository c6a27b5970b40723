#pragma once

#include "style/asking/Mode.h"

#include <QtGui/QPalette>

namespace TARN {

/// What styles that are made take from the theme that is applied.
struct AppliedTheme
{
    Mode mode = Mode::Default;
    /// The theme's palette with all its groups; only kept for the complete mode.
    QPalette palette;
};

/// Returns what was set last; the default mode when nothing was.
const AppliedTheme &appliedTheme();

void setAppliedTheme(const AppliedTheme &theme);

} // namespace TARN
