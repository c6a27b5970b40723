#pragma once

class QComboBox;

namespace TARN {
class ComboBoxDefaultItemDelegate;
}

/// Returns a combo box of three entries, of which the middle one is a separator.
QComboBox *makeComboBox(bool editable);

/// Returns the delegate of the entries if it is one that the style gives.
TARN::ComboBoxDefaultItemDelegate *delegateOf(const QComboBox &combo);

/// Opens the list of \a combo and has it painted. Tells whether it was.
bool opens(QComboBox &combo);
