#pragma once

class QDialog;
class QWidget;

namespace TARN::Gallery {

/// Returns a framed widget that shows \a dialog, which it takes, as a part of a page. A dialog that
/// is accepted or cancelled comes back.
QWidget *embedded(QDialog *dialog);

} // namespace TARN::Gallery
