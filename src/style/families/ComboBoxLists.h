#pragma once

class QComboBox;

namespace TARN {
class Polishing;
}

/// The lists that combo boxes open.
namespace TARN::ComboBoxes {

/// Gives the list, if it has the toolkit's delegate, one that draws separators.
void polishList(Polishing &polishing);

/// Has the list of \a comboBox be what it will be when it is seen.
void polishListOf(const QComboBox &comboBox);

} // namespace TARN::ComboBoxes
