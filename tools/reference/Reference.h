#pragma once

#include <QtCore/QString>

namespace TARN::Reference {

/// Returns the theme author's reference: \a introduction, in which each line that is but a word
/// between percent signs ("%FAMILIES%") is replaced by what the catalogue of variables tells.
QString makeReference(const QString &introduction);

} // namespace TARN::Reference
