#include "check/rules/ImageRules.h"

#include "check/rules/IconIndex.h"
#include "resources/files/FileLimits.h"
#include "resources/files/PictureFault.h"
#include "text/Literals.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtGui/QImageReader>
#include <QtGui/QRawFont>

#include <algorithm>

namespace TARN::ThemeTool {

namespace {

const QString imagesFolder = QStringLiteral("Images");

/// Returns the folder that \a name may have been meant for: one that differs in case, or the only
/// one in \a images.
QString meantFolder(const QDir &images, const QString &name)
{
    const QStringList folders = images.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString &folder : folders) {
        if (folder.compare(name, Qt::CaseInsensitive) == 0) {
            return folder;
        }
    }
    return folders.size() == 1 ? folders.first() : QString();
}

/// Returns the path of the theme's images, or of those that are meant to be the theme's; an empty
/// text when there are none.
QString checkedFolder(const QDir &directory, const Description &description, FindingList &findings)
{
    const QDir images(directory.filePath(imagesFolder));
    // Paths may have trailing blanks and separators, which open folders of other names.
    const bool exists = images.entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden)
                            .contains(description.name);
    if (exists) {
        return images.filePath(description.name);
    }
    const QString meant = meantFolder(images, description.name);
    const QString wanted = quoted(imagesFolder + "/"_s + description.name);
    findings.add("image-folder"_s, description.place,
                 "There is no folder "_s + wanted + ", which is named after the theme"_s,
                 meant.isEmpty()
                     ? "Create it"_s
                     : "Rename "_s + quoted(imagesFolder + "/"_s + meant) + " to "_s + wanted);
    return meant.isEmpty() ? QString() : images.filePath(meant);
}

bool isVectorImage(const QByteArray &format)
{
    return format == "svg" || format == "svgz";
}

/// Returns why the library would not use the image at \a path; an empty text when it would.
QString refusal(const QString &path, qint64 mostPixels)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? pictureFault(file, path, {mostPixels, false})
                                          : QString();
}

/// Returns why the image at \a path cannot be loaded; an empty text when it can.
QString imageFault(const QString &path, qint64 mostPixels, QSize &size)
{
    QString fault = refusal(path, mostPixels);
    if (!fault.isEmpty()) {
        return fault;
    }
    // Small enough to be drawn in no time, and more than enough for the others.
    constexpr int drawnSize = 16;
    constexpr qint64 mostDecodedPixels = 1 << 24;
    QImageReader reader(path);
    if (!reader.canRead()) {
        return reader.errorString();
    }
    size = reader.size();
    if (isVectorImage(reader.format())) {
        reader.setScaledSize({drawnSize, drawnSize});
    } else if (qint64(size.width()) * size.height() > mostDecodedPixels) {
        return {};
    }
    return reader.read().isNull() ? reader.errorString() : QString();
}

/// Returns what is wrong with the cursor file at \a path, whose picture is of \a size; an empty
/// text when nothing is.
QString cursorFault(const QString &path, const QSize &size)
{
    constexpr int typeOffset = 2;
    constexpr int cursorType = 2;
    constexpr int xOffset = 10;
    constexpr int yOffset = 12;
    constexpr int headerSize = 14;
    QFile file(path);
    const QByteArray header = file.open(QIODevice::ReadOnly) ? file.read(headerSize) : QByteArray();
    // The library takes both bytes for signed ones.
    const auto value = [&header](int offset) {
        return (static_cast<qint8>(header.at(offset + 1)) * 256) |
               static_cast<qint8>(header.at(offset));
    };
    if (header.size() < headerSize || value(typeOffset) != cursorType) {
        return "it is no cursor file, so that its hotspot is lost"_s;
    }
    const QPoint hotspot(value(xOffset), value(yOffset));
    if (QRect(QPoint(), size).contains(hotspot)) {
        return {};
    }
    return "its hotspot %1,%2 lies outside the picture"_s.arg(hotspot.x()).arg(hotspot.y());
}

QStringList imageFilters()
{
    QStringList filters;
    for (const QByteArray &format : QImageReader::supportedImageFormats()) {
        filters.append("*."_s + QString::fromLatin1(format));
    }
    return filters;
}

void checkImageFiles(const QDir &folder, qint64 mostPixels, FindingList &findings)
{
    static const QStringList filters = imageFilters();
    const QFileInfoList files = folder.entryInfoList(filters, QDir::Files, QDir::Name);
    for (const QFileInfo &file : files) {
        const QString path = folder.filePath(file.fileName());
        QSize size;
        QString fault = imageFault(path, mostPixels, size);
        if (fault.isEmpty() && file.suffix() == "cur"_s) {
            fault = cursorFault(path, size);
        }
        if (!fault.isEmpty()) {
            findings.add("unreadable-image"_s, {path, 0, 0},
                         quoted(file.fileName()) + " cannot be loaded: "_s + fault);
        }
    }
}

} // namespace

void checkImages(const QString &directory, const Description &description, FindingList &findings)
{
    if (description.name.isEmpty()) {
        return;
    }
    const QString path = checkedFolder(QDir(directory), description, findings);
    if (path.isEmpty()) {
        return;
    }
    const QDir folder(path);
    checkIconIndex(folder.filePath("index.theme"_s), findings);
    if (findings.wants("unreadable-image"_s)) {
        checkImageFiles(QDir(folder.filePath("scalable"_s)), FileLimits::iconPixels, findings);
        checkImageFiles(QDir(folder.filePath("Cursors"_s)), FileLimits::cursorPixels, findings);
    }
}

void checkFontFiles(const QString &directory, FindingList &findings)
{
    constexpr double anySize = 10;
    const QDir fonts(QDir(directory).filePath("Fonts"_s));
    const QStringList files = fonts.entryList({"*.ttf"_s}, QDir::Files, QDir::Name);
    for (const QString &file : files) {
        const QString path = fonts.filePath(file);
        if (!QRawFont(path, anySize).isValid()) {
            findings.add("invalid-font"_s, {path, 0, 0},
                         quoted(file) + " cannot be loaded as a font"_s);
        }
    }
}

} // namespace TARN::ThemeTool
