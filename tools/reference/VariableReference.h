#pragma once

#include <QtCore/QString>

namespace TARN::Reference {

/// Returns the theme author's reference: \a page, filled in with the variables of the catalogue.
QString makeVariableReference(const QString &page);

} // namespace TARN::Reference
