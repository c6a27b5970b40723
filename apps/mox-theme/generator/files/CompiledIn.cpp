#include "generator/files/CompiledIn.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

// Resources of a static library are left out of a program that does not ask for them; the macro
// works outside namespaces only.
static bool registerResources()
{
    Q_INIT_RESOURCE(dark_ground);
    Q_INIT_RESOURCE(light_ground);
    Q_INIT_RESOURCE(theme_fonts);
    return true;
}

namespace TARN::ThemeTool {

FileSet compiledInFiles(const QString &folder, const QString &prefix)
{
    static const bool areRegistered = registerResources();
    Q_UNUSED(areRegistered)
    FileSet files;
    const QDir source(folder);
    for (const QString &name : source.entryList(QDir::Files)) {
        QFile file(source.filePath(name));
        if (file.open(QIODevice::ReadOnly)) {
            files.insert(prefix + name, file.readAll());
        }
    }
    return files;
}

} // namespace TARN::ThemeTool
