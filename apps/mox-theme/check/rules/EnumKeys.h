#pragma once

#include <QtCore/QMetaEnum>
#include <QtCore/QStringList>

namespace TARN::ThemeTool {

/// Returns the names of the values of \a Enum, which Qt knows.
template <typename Enum>
QStringList enumKeys()
{
    const QMetaEnum values = QMetaEnum::fromType<Enum>();
    QStringList keys;
    for (int i = 0; i < values.keyCount(); ++i) {
        keys.append(QString::fromLatin1(values.key(i)));
    }
    return keys;
}

} // namespace TARN::ThemeTool
