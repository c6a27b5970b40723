#include "resources/variables/VariablePath.h"

#include <QtCore/QStringList>

namespace TARN {

namespace {
constexpr QLatin1Char varSeparator('/');
} // namespace

QVariant getThemeVarInternal(const QMap<QString, QVariant> &map, const QString &path,
                             const QVariant &defaultValue)
{
    QStringList parts = path.split(varSeparator, Qt::KeepEmptyParts);
    if (parts.isEmpty()) {
        return {};
    }
    QVariant current = map.value(parts.takeFirst());
    while (!parts.isEmpty() && current.userType() == QMetaType::QVariantMap) {
        current = current.toMap().value(parts.takeFirst());
    }
    return current.isValid() ? current : defaultValue;
}

} // namespace TARN
