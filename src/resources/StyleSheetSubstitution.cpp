#include "resources/ThemeResources.h"
#include "resources/VariablePath.h"

namespace TARN {

namespace {

QRegularExpression placeholderPattern()
{
    return QRegularExpression(QStringLiteral("(@)([\\w%1]+)(@)").arg(QLatin1Char('/')));
}

} // namespace

QString ThemeResources::customizeStyleSheet(const QString &styleSheet)
{
    const QVariantMap variables = publishedVariables(getThemeVariablePropertyName());
    QString result;
    int copied = 0;
    // The text of a value is not searched again, and the end of a placeholder that names nothing
    // does not open another one: matches that follow each other on the input are all there are.
    QRegularExpressionMatchIterator matches = placeholderPattern().globalMatch(styleSheet);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        const QVariant value = getThemeVarInternal(variables, match.captured(2), QVariant());
        if (value.isValid()) {
            result += styleSheet.midRef(copied, match.capturedStart() - copied);
            result += value.toString();
            copied = match.capturedEnd();
        }
    }
    result += styleSheet.midRef(copied);
    return result;
}

} // namespace TARN
