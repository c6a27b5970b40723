#include "resources/images/ImageFiles.h"

#include "resources/files/AllowedPicture.h"
#include "resources/files/FileLimits.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QPoint>
#include <QtCore/QtMath>
#include <QtGui/QGuiApplication>
#include <QtGui/QImageReader>

#include <array>

namespace TARN::ImageFiles {

namespace {

/// Returns the path of the file \a name in the first of \a directories that has it, as it stands
/// or with one of \a extensions appended; a null string when none has.
QString findFilePath(const QString &name, const QStringList &directories,
                     const QStringList &extensions)
{
    if (name.isEmpty()) {
        return {};
    }
    const QString relativePath = QDir::fromNativeSeparators(name);
    for (const QString &directory : directories) {
        QString candidate = QDir::fromNativeSeparators(directory);
        if (!candidate.endsWith(QLatin1Char('/')) && !name.startsWith(QLatin1Char('/'))) {
            candidate += QLatin1Char('/');
        }
        candidate += relativePath;
        if (QFile::exists(candidate)) {
            return candidate;
        }
        for (const QString &extension : extensions) {
            QString extended = candidate + QLatin1Char('.') + extension;
            if (QFile::exists(extended)) {
                return extended;
            }
        }
    }
    return {};
}

QStringList imageExtensions()
{
    QStringList extensions;
    const QList<QByteArray> formats = QImageReader::supportedImageFormats();
    extensions.reserve(formats.size());
    for (const QByteArray &format : formats) {
        extensions.append(QString::fromLatin1(format));
    }
    return extensions;
}

QString findImagePath(const QString &name, const QString &searchPathPrefix)
{
    return findFilePath(name, QDir::searchPaths(searchPathPrefix), imageExtensions());
}

QString findIconPath(const QString &name)
{
    return findImagePath(name, iconsPrefix());
}

/// Returns the image at \a path, at its own size when \a scaledSize is invalid; a null pixmap when
/// it has more than \a mostPixels. QPixmap's constructor would give an earlier content of the file
/// when it was replaced within a second.
QPixmap readPixmap(const QString &path, const QSize &scaledSize, qint64 mostPixels)
{
    if (!QFile::exists(path) || !isAllowedPicture(path, {mostPixels, !scaledSize.isValid()})) {
        return {};
    }
    QImageReader reader(path);
    reader.setScaledSize(scaledSize);
    return QPixmap::fromImageReader(&reader);
}

/// Tells whether the toolkit may make an icon of the file at \a path.
bool isAllowedIcon(const QString &path)
{
    // What is compiled in is ours, and what a resource file brings was looked at when it came.
    return path.startsWith(QLatin1Char(':')) ||
           isAllowedPicture(path, {FileLimits::iconPixels, false});
}

/// The same for the variants of \a path that the toolkit takes as well on fine screens.
bool areAllowedVariants(const QString &path)
{
    const auto *app = qobject_cast<QGuiApplication *>(QCoreApplication::instance());
    constexpr int mostPixelRatio = 9;
    const int ratio = app ? qMin(qCeil(app->devicePixelRatio()), mostPixelRatio) : 1;
    const QFileInfo info(path);
    const QString base = info.path() + QLatin1Char('/') + info.completeBaseName();
    for (int each = 2; each <= ratio; ++each) {
        const QString variant = QStringLiteral("%1@%2x.%3").arg(base).arg(each).arg(info.suffix());
        if (QFile::exists(variant) && !isAllowedIcon(variant)) {
            return false;
        }
    }
    return true;
}

/// Reads the two-byte values of a cursor file's header, one after the other.
class CursorHeaderReader
{
public:
    explicit CursorHeaderReader(QFile &file)
        : m_file(file)
    {
    }

    /// Both bytes count as signed ones, so that a low byte from 0x80 makes the value negative. At
    /// the end of the file what has been read before stands in for what is missing.
    int next()
    {
        m_file.read(m_bytes.data(), sizeof(m_bytes));
        // Multiplied, since shifting a negative value to the left is undefined.
        return (static_cast<qint8>(m_bytes[1]) * 256) | static_cast<qint8>(m_bytes[0]);
    }

private:
    QFile &m_file;
    std::array<char, 2> m_bytes{};
};

QPoint extractHotspotFromCurFile(const QString &path)
{
    constexpr int cursorType = 2;
    constexpr int sizeAndColorBytes = 4;

    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    CursorHeaderReader header(file);
    header.next(); // reserved
    if (header.next() != cursorType) {
        return {};
    }
    header.next(); // the number of images
    file.skip(sizeAndColorBytes);
    const int x = header.next();
    const int y = header.next();
    return {x, y};
}

} // namespace

const QString &iconsPrefix()
{
    static const QString prefix = QStringLiteral("icons");
    return prefix;
}

const QString &cursorsPrefix()
{
    static const QString prefix = QStringLiteral("cursors");
    return prefix;
}

const QString &themeResourcesPrefix()
{
    static const QString prefix = QStringLiteral("resources");
    return prefix;
}

QIcon icon(const QString &name)
{
    const QString path = findIconPath(name);
    const bool isUsable = !path.isEmpty() && isAllowedIcon(path) && areAllowedVariants(path);
    return isUsable ? QIcon(path) : QIcon();
}

QStringList iconNames(const QRegularExpression &filter)
{
    QStringList names;
    const QStringList directories = QDir::searchPaths(iconsPrefix());
    for (const QString &directory : directories) {
        const QStringList fileNames = QDir(directory).entryList(QDir::Files, QDir::NoSort);
        for (const QString &fileName : fileNames) {
            if (!fileName.contains(filter) || fileName.contains(QLatin1String("Brush.svg"))) {
                continue;
            }
            names.append(QFileInfo(fileName).completeBaseName());
        }
    }
    names.removeDuplicates();
    return names;
}

QPixmap pixmap(const QString &name, const QSize &size)
{
    return readPixmap(findIconPath(name), size, FileLimits::picturePixels);
}

QCursor cursor(const QString &name)
{
    const QString path = findImagePath(name, cursorsPrefix());
    const QPixmap pixmap = readPixmap(path, QSize(), FileLimits::cursorPixels);
    if (pixmap.isNull()) {
        // The same cursor as Qt makes of a null pixmap, without the warning.
        return {};
    }
    if (QFileInfo(path).suffix() != QLatin1String("cur")) {
        return {pixmap, -1, -1};
    }
    const QPoint hotspot = extractHotspotFromCurFile(path);
    return {pixmap, hotspot.x(), hotspot.y()};
}

} // namespace TARN::ImageFiles
