#pragma once

#include <QtCore/QRegularExpression>
#include <QtCore/QString>

namespace TARN {

/// Matches the placeholders of stylesheets; the second group captures the path of the variable.
inline QRegularExpression placeholderPattern()
{
    return QRegularExpression(QStringLiteral("(@)([\\w%1]+)(@)").arg(QLatin1Char('/')));
}

/// Returns \a styleSheet with each placeholder replaced by the text of the variable that is
/// published at its path. A placeholder that names no variable stays as it stands.
QString withVariables(const QString &styleSheet);

} // namespace TARN
