#include "FileSet.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>
#include <QtCore/QSet>

namespace TARN::Artwork {

namespace {

bool isUpToDate(const QString &path, const QByteArray &contents)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.readAll() == contents;
}

bool writeFile(const QString &path, const QByteArray &contents)
{
    if (isUpToDate(path, contents)) {
        return true;
    }
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size() &&
           file.commit();
}

} // namespace

QByteArray resourceCollection(const QString &prefix, const QStringList &paths)
{
    QString text = QStringLiteral("<RCC>\n    <qresource prefix=\"%1\">\n").arg(prefix);
    for (const QString &path : paths) {
        text += QStringLiteral("        <file alias=\"%1\">%2</file>\n")
                    .arg(path.section(QLatin1Char('/'), -1), path);
    }
    return (text + QStringLiteral("    </qresource>\n</RCC>\n")).toUtf8();
}

QStringList writeFiles(const QString &folder, const FileSet &files)
{
    QStringList errors;
    // Everything below this compares paths, which only absolute ones allow.
    const QDir target(QDir(folder).absolutePath());
    QMap<QString, QSet<QString>> suffixes;
    for (auto file = files.begin(); file != files.end(); ++file) {
        const QFileInfo info(target.filePath(file.key()));
        QDir().mkpath(info.path());
        suffixes[info.path()].insert(info.suffix());
        if (!writeFile(info.filePath(), file.value())) {
            errors.append(QStringLiteral("can't write %1").arg(info.filePath()));
        }
    }
    for (auto place = suffixes.begin(); place != suffixes.end(); ++place) {
        for (const QFileInfo &info : QDir(place.key()).entryInfoList(QDir::Files)) {
            const bool isKept = files.contains(target.relativeFilePath(info.filePath()));
            if (!isKept && place.value().contains(info.suffix()) &&
                !QFile::remove(info.filePath())) {
                errors.append(QStringLiteral("can't remove %1").arg(info.filePath()));
            }
        }
    }
    return errors;
}

} // namespace TARN::Artwork
