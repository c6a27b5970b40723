#include "generator/files/ThemeWriter.h"

#include "generator/files/ConfigurationFile.h"
#include "generator/files/PaletteFile.h"
#include "generator/files/ThemeFolder.h"
#include "generator/files/ThemeFonts.h"
#include "generator/files/ThemeImages.h"
#include "generator/files/XmlLayout.h"
#include "generator/recipes/ThemeDefinition.h"
#include "generator/tokens/ThemeName.h"
#include "text/Literals.h"

#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>

#include <filesystem>
#include <system_error>

namespace TARN::ThemeTool {

namespace {

QByteArray descriptionFile(const ThemeDefinition &definition)
{
    XmlLayout xml;
    xml.comment("The name is also that of the folder below Images."_s);
    xml.open("theme"_s);
    xml.element("name"_s, definition.name);
    xml.close();
    return xml.toUtf8();
}

QString writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    // A full disk may show no sooner than what was written is flushed.
    const bool isWritten = QDir().mkpath(QFileInfo(path).path()) &&
                           file.open(QIODevice::WriteOnly | QIODevice::NewOnly) &&
                           file.write(content) == content.size() && file.flush();
    return isWritten ? QString() : "cannot write %1: %2"_s.arg(path, file.errorString());
}

QString writeFiles(const QString &folder, const FileSet &files)
{
    for (auto file = files.begin(); file != files.end(); ++file) {
        QString problem = writeFile(folder + QLatin1Char('/') + file.key(), file.value());
        if (!problem.isEmpty()) {
            return problem;
        }
    }
    return {};
}

/// Makes a link at \a target that reads as the one at \a path does, where a relative one leads to
/// what lies beside it.
bool copyLink(const QString &path, const QString &target)
{
    std::error_code error;
    std::filesystem::copy_symlink(QFile::encodeName(path).toStdString(),
                                  QFile::encodeName(target).toStdString(), error);
    return !error;
}

/// Copies what \a files lack of the folder \a former into \a folder. Links stay links.
QString copyOtherFiles(const QString &former, const FileSet &files, const QString &folder)
{
    const QDir source(former);
    QDirIterator entries(
        former, QDir::Files | QDir::Dirs | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
        QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QFileInfo entry(entries.next());
        const QString name = source.relativeFilePath(entry.filePath());
        const bool isFolder = entry.isDir() && !entry.isSymLink();
        if (isFolder || files.contains(name)) {
            continue;
        }
        const QString target = folder + QLatin1Char('/') + name;
        const bool isCopied = QDir().mkpath(QFileInfo(target).path()) &&
                              (entry.isSymLink() ? copyLink(entry.filePath(), target)
                                                 : QFile::copy(entry.filePath(), target));
        if (!isCopied) {
            return "cannot copy %1"_s.arg(entry.filePath());
        }
    }
    return {};
}

/// Puts the folder "new" of \a workshop in the place of \a target, whose folder goes into
/// \a workshop. Both lie in one file system, where renaming is done wholly or not at all.
QString replaceFolder(QTemporaryDir &workshop, const QString &target)
{
    const QString former = workshop.filePath("former"_s);
    const bool isThere = QFileInfo::exists(target);
    if (isThere && !QDir().rename(target, former)) {
        return "cannot move the former theme out of %1"_s.arg(target);
    }
    if (QDir().rename(workshop.filePath("new"_s), target)) {
        return {};
    }
    if (isThere && !QDir().rename(former, target)) {
        workshop.setAutoRemove(false);
        return "cannot write %1; the former theme is in %2"_s.arg(target, former);
    }
    return "cannot write %1"_s.arg(target);
}

QString writeFolder(const FileSet &files, const QString &target)
{
    const QString parent = QFileInfo(target).path();
    if (!QDir().mkpath(parent)) {
        return "cannot create the folder %1"_s.arg(parent);
    }
    QTemporaryDir workshop(parent + "/.mox-theme-XXXXXX"_s);
    if (!workshop.isValid()) {
        return "cannot write into %1: %2"_s.arg(parent, workshop.errorString());
    }
    QString problem = writeFiles(workshop.filePath("new"_s), files);
    if (problem.isEmpty() && QFileInfo::exists(target)) {
        problem = copyOtherFiles(target, files, workshop.filePath("new"_s));
    }
    return problem.isEmpty() ? replaceFolder(workshop, target) : problem;
}

/// Returns the path of \a directory itself where it is a link to a folder.
QString resolved(const QString &directory)
{
    const QFileInfo info(QDir::cleanPath(QFileInfo(directory).absoluteFilePath()));
    return info.exists() ? info.canonicalFilePath() : info.filePath();
}

} // namespace

QString writeTheme(const ThemeDefinition &definition, const QString &directory)
{
    const QString nameProblem = themeNameProblem(definition.name);
    if (!nameProblem.isEmpty()) {
        return R"(the name "%1" )"_s.arg(definition.name) + nameProblem;
    }
    const QString target = resolved(directory);
    if (folderKind(target) == FolderKind::Other) {
        return "%1 is there already and is no theme"_s.arg(target);
    }
    FileSet files;
    QString problem = addImages(definition, files);
    files.insert("theme.xml"_s, descriptionFile(definition));
    files.insert("config.xml"_s, configurationFile(definition));
    files.insert("qpaletteMapping.xml"_s, paletteFile(definition));
    if (problem.isEmpty()) {
        problem = addFonts(definition.font, files);
    }
    return problem.isEmpty() ? writeFolder(files, target) : problem;
}

} // namespace TARN::ThemeTool
