#pragma once

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QVariant>

namespace TARN {

/// Returns \a values under the same keys, each wrapped in its own type, the form in which a group
/// of theme variables is published.
template <typename T>
QMap<QString, QVariant> fillQVariantMap(const QMap<QString, T> &values)
{
    QMap<QString, QVariant> variants;
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        variants.insert(variants.cend(), it.key(), QVariant::fromValue(it.value()));
    }
    return variants;
}

} // namespace TARN
