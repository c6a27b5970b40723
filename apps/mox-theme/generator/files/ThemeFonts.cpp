#include "generator/files/ThemeFonts.h"

#include "generator/files/CompiledIn.h"
#include "generator/tokens/Tokens.h"
#include "text/Literals.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

namespace TARN::ThemeTool {

namespace {

const char OwnFamily[] = "Open Sans";

} // namespace

QString addFonts(const FontTokens &font, FileSet &files)
{
    if (font.family == QLatin1String(OwnFamily)) {
        files.insert(compiledInFiles(":/ThemeFonts"_s, "Fonts/"_s));
    }
    // The author's own come second: they may be another cut of the same file.
    for (const QString &path : font.files) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) {
            return "cannot read the font file %1: %2"_s.arg(path, file.errorString());
        }
        files.insert("Fonts/"_s + QFileInfo(path).fileName(), file.readAll());
    }
    return {};
}

} // namespace TARN::ThemeTool
