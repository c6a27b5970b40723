#pragma once

#include <QtCore/QString>

namespace TARN::Reference {

/// Returns the reference of properties: \a page, filled in with those of the catalogue that
/// applications set or read.
QString makePropertyReference(const QString &page);

} // namespace TARN::Reference
