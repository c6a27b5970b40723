#include "theme/Theme.h"

namespace TARN {

Theme::~Theme() = default;

} // namespace TARN
