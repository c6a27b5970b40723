#pragma once

#include <QtCore/QVariant>

namespace TARN {

/// Returns the application's variable map in the property \a propertyName, as it is published now;
/// empty when there is no application object or nothing has been published.
QVariantMap publishedVariables(const char *propertyName);

} // namespace TARN
