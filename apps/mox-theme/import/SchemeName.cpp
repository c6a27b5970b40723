#include "import/SchemeName.h"

#include "text/Literals.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QVector>

namespace TARN::ThemeTool {

namespace {

/// In letters, of which file systems take 255 bytes.
constexpr int LongestName = 60;

/// Tells whether a folder can have \a codePoint in its name on any system to which it is copied.
bool fitsFolderName(uint codePoint)
{
    static const QString unfit = R"(/\:*?"<>|)"_s;
    const QChar::Category category = QChar::category(codePoint);
    const bool isUnseen = category >= QChar::Other_Control && category <= QChar::Other_NotAssigned;
    return !isUnseen && (codePoint > 0x7F || !unfit.contains(QChar(codePoint)));
}

/// Returns \a name as a folder can be called; empty when nothing is left of it.
QString folderName(const QString &name)
{
    QVector<uint> codePoints = name.toUcs4();
    for (uint &codePoint : codePoints) {
        if (!fitsFolderName(codePoint)) {
            codePoint = ' ';
        }
    }
    codePoints = codePoints.mid(0, LongestName);
    // Hidden folders are no themes.
    static const QRegularExpression ends(R"(^[\s.]+|[\s.]+$)"_s);
    return QString::fromUcs4(codePoints.constData(), codePoints.size()).simplified().remove(ends);
}

} // namespace

QString themeNameFrom(const QStringList &names)
{
    for (const QString &name : names) {
        QString result = folderName(name);
        if (!result.isEmpty()) {
            return result;
        }
    }
    return "Imported"_s;
}

} // namespace TARN::ThemeTool
