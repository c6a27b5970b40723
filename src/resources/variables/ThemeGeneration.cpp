#include "resources/variables/ThemeGeneration.h"

namespace TARN {

ThemeGeneration ThemeGeneration::s_current;

} // namespace TARN
