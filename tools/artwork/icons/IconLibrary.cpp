#include "icons/IconLibrary.h"

#include "icons/Composer.h"
#include "icons/DrawingParser.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

namespace TARN::Artwork {

namespace {

const QString CompiledIn = QStringLiteral("compiled-in");

QString readText(const QString &path, QStringList *errors)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        errors->append(QStringLiteral("%1: %2").arg(path, file.errorString()));
        return {};
    }
    return QString::fromUtf8(file.readAll());
}

} // namespace

IconLibrary::IconLibrary(const QString &folder, QStringList *errors)
    : m_palettes(parsePalettes(readText(folder + QStringLiteral("/palette.txt"), errors), errors))
{
    readDrawings(folder + QStringLiteral("/motifs"), &m_motifNames, errors);
    readDrawings(folder + QStringLiteral("/families"), &m_iconNames, errors);
    m_iconNames.sort();
    readStandardIcons(folder + QStringLiteral("/standard.txt"), errors);
}

void IconLibrary::readDrawings(const QString &folder, QStringList *names, QStringList *errors)
{
    const QFileInfoList sources =
        QDir(folder).entryInfoList({QStringLiteral("*.icons")}, QDir::Files, QDir::Name);
    for (const QFileInfo &source : sources) {
        const QString text = readText(source.filePath(), errors);
        for (const Drawing &drawing : parseDrawings(text, source.fileName(), errors)) {
            if (m_drawings.contains(drawing.name)) {
                errors->append(drawing.origin +
                               QStringLiteral(": \"%1\" stands in %2 already")
                                   .arg(drawing.name, m_drawings.value(drawing.name).origin));
                continue;
            }
            m_drawings.insert(drawing.name, drawing);
            names->append(drawing.name);
        }
    }
}

void IconLibrary::readStandardIcons(const QString &path, QStringList *errors)
{
    for (const QString &line : readText(path, errors).split(QLatin1Char('\n'))) {
        const QStringList words = line.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
        if (words.isEmpty() || line.startsWith(QLatin1Char('#'))) {
            continue;
        }
        if (words.size() != 3) {
            errors->append(QStringLiteral("%1: expected three words: %2").arg(path, line));
            continue;
        }
        m_standardIcons.append({words.at(0), words.at(1), words.at(2)});
    }
}

QStringList IconLibrary::iconNames() const
{
    return m_iconNames;
}

QStringList IconLibrary::unusedMotifs() const
{
    QStringList unused = m_motifNames;
    for (const Drawing &drawing : m_drawings) {
        for (const Layer &layer : drawing.layers) {
            if (const auto *reference = std::get_if<Reference>(&layer)) {
                unused.removeOne(reference->name);
            }
        }
    }
    for (const StandardIcon &icon : m_standardIcons) {
        unused.removeOne(icon.drawing);
    }
    return unused;
}

Palette IconLibrary::palette() const
{
    return m_palettes.value(CompiledIn);
}

QByteArray IconLibrary::icon(const QString &name, QStringList *errors) const
{
    return Composer(m_drawings).compose(name, palette(), errors);
}

FileSet IconLibrary::compiledInFiles(QStringList *errors) const
{
    FileSet files;
    for (const QString &name : m_iconNames) {
        files.insert(QStringLiteral("icons/%1.svg").arg(name), icon(name, errors));
    }
    files.insert(QStringLiteral("icons.qrc"),
                 resourceCollection(QStringLiteral("/Icons"), files.keys()));
    return files;
}

QStringList IconLibrary::grounds() const
{
    QStringList grounds = m_palettes.keys();
    grounds.removeOne(CompiledIn);
    return grounds;
}

FileSet IconLibrary::standardIcons(const QString &ground, QStringList *errors) const
{
    FileSet files;
    const Composer composer(m_drawings);
    for (const StandardIcon &icon : m_standardIcons) {
        const QString paletteName = icon.palette == u"*" ? ground : icon.palette;
        if (!m_palettes.contains(paletteName)) {
            errors->append(QStringLiteral("no palette is named \"%1\"").arg(paletteName));
        }
        files.insert(icon.name + QStringLiteral(".svg"),
                     composer.compose(icon.drawing, m_palettes.value(paletteName), errors));
    }
    return files;
}

FileSet IconLibrary::standardIconFiles(QStringList *errors) const
{
    FileSet files;
    for (const QString &ground : grounds()) {
        FileSet icons;
        const FileSet ofGround = standardIcons(ground, errors);
        for (auto icon = ofGround.begin(); icon != ofGround.end(); ++icon) {
            icons.insert(ground + QLatin1Char('/') + icon.key(), icon.value());
        }
        files.insert(ground + QStringLiteral(".qrc"),
                     resourceCollection(QStringLiteral("/StandardIcons/") + ground, icons.keys()));
        files.insert(icons);
    }
    return files;
}

} // namespace TARN::Artwork
