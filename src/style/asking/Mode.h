#pragma once

namespace TARN {

/// How much of the look is the style's own.
enum class Mode {
    Default, ///< the compiled-in stylesheets and the base style have their share of it
    Complete ///< all of it; there is no stylesheet
};

} // namespace TARN
