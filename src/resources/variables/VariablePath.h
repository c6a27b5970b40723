#pragma once

#include <QtCore/QString>
#include <QtCore/QVariant>

namespace TARN {

/// Returns the value at \a path in \a map, whose nested maps are entered part by part, or
/// \a defaultValue when there is none. Parts that lead beyond a value are ignored.
QVariant getThemeVarInternal(const QMap<QString, QVariant> &map, const QString &path,
                             const QVariant &defaultValue);

} // namespace TARN
