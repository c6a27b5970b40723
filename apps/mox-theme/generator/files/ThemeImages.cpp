#include "generator/files/ThemeImages.h"

#include "generator/files/CompiledIn.h"
#include "generator/recipes/ThemeDefinition.h"
#include "text/Literals.h"

#include <QtCore/QDirIterator>
#include <QtCore/QFile>

namespace TARN::ThemeTool {

namespace {

/// Returns the file by which the toolkit knows an icon theme.
QByteArray indexFile(QString name)
{
    // A quotation mark alone would make the toolkit look for the other one in the lines below.
    name.replace(QLatin1Char('\\'), R"(\\)"_s);
    name.replace(QLatin1Char('"'), R"(\")"_s);
    return R"([Icon Theme]
Name=%1
Comment=Icons of the %1 theme
Inherits=hicolor
Directories=scalable

[scalable]
Context=Actions
Type=Scalable
Size=16
MinSize=8
MaxSize=512
)"_s.replace("%1"_s, name)
        .toUtf8();
}

/// Adds the files below the folder \a source to \a files, below \a target.
QString addFolder(const QString &source, const QString &target, FileSet &files)
{
    const QDir folder(source);
    QDirIterator paths(source, QDir::Files, QDirIterator::Subdirectories);
    while (paths.hasNext()) {
        QFile file(paths.next());
        if (!file.open(QIODevice::ReadOnly)) {
            return "cannot read the image %1: %2"_s.arg(file.fileName(), file.errorString());
        }
        files.insert(target + folder.relativeFilePath(file.fileName()), file.readAll());
    }
    return {};
}

} // namespace

QString addImages(const ThemeDefinition &definition, FileSet &files)
{
    const QString folder = "Images/%1/"_s.arg(definition.name);
    // Dark icons are those that are drawn for a light ground.
    const QString icons = definition.darkIcons ? "light-ground"_s : "dark-ground"_s;
    files.insert(compiledInFiles(":/StandardIcons/"_s + icons, folder + "scalable/"_s));
    files.insert(folder + "index.theme"_s, indexFile(definition.name));
    // The author's own come second: they may take the place of the tool's.
    return definition.images.isEmpty() ? QString() : addFolder(definition.images, folder, files);
}

} // namespace TARN::ThemeTool
