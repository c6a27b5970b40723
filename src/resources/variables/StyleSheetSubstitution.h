#pragma once

#include <QtCore/QRegularExpression>
#include <QtCore/QString>

namespace TARN {

/// Matches the placeholders of stylesheets; the second group captures the path of the variable.
inline QRegularExpression placeholderPattern()
{
    return QRegularExpression(QStringLiteral("(@)([\\w%1]+)(@)").arg(QLatin1Char('/')));
}

} // namespace TARN
