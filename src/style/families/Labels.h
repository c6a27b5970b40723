#pragma once

namespace TARN {
class Polishing;
}

/// Labels.
namespace TARN::Labels {

void polishDisabledText(Polishing &polishing);

} // namespace TARN::Labels
