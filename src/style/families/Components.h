#pragma once

namespace TARN {
class Polishing;
}

/// The application's components, which paint themselves with what they are handed as properties.
namespace TARN::Components {

void polishContainer(Polishing &polishing);
void polishButtonGroup(Polishing &polishing);
void polishRoundedPixmap(Polishing &polishing);
void polishPill(Polishing &polishing);
void polishPeriodicTable(Polishing &polishing);

} // namespace TARN::Components
