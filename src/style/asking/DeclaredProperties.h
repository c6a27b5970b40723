#pragma once

#include "catalogue/Properties.h"

struct QMetaObject;

namespace TARN {

/// Returns the index of a property that a class declares or inherits; -1 when there is none of that
/// name. It is quick for the toolkit's classes, and for those that add no properties to them.
int declaredIndex(const QMetaObject &metaObject, Property property);

} // namespace TARN
