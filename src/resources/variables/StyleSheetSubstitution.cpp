#include "resources/variables/StyleSheetSubstitution.h"

#include "resources/variables/GroupNames.h"
#include "resources/variables/LookUps.h"
#include "resources/variables/PublishedVariables.h"
#include "resources/variables/VariablePath.h"

namespace TARN {

QString withVariables(const QString &styleSheet)
{
    const QVariantMap variables = publishedVariables(GroupNames::variables);
    QString result;
    int copied = 0;
    // The text of a value is not searched again, and the end of a placeholder that names nothing
    // does not open another one: matches that follow each other on the input are all there are.
    QRegularExpressionMatchIterator matches = placeholderPattern().globalMatch(styleSheet);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        const QString path = match.captured(2);
        tellLookUp(path);
        const QVariant value = getThemeVarInternal(variables, path, QVariant());
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
