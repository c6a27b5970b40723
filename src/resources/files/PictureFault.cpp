#include "resources/files/PictureFault.h"

#include "resources/files/DrawingFault.h"
#include "resources/files/FileLimits.h"
#include "resources/files/RasterPixels.h"

#include <QtCore/QIODevice>
#include <QtGui/QImageReader>

#include <algorithm>
#include <iterator>

namespace TARN {

namespace {

/// Tells whether a file called \a name is given to the renderer of drawings whatever it holds.
bool isNamedLikeDrawing(const QString &name)
{
    static const QLatin1String extensions[] = {QLatin1String(".svg"), QLatin1String(".svgz"),
                                               QLatin1String(".svg.gz")};
    return std::any_of(std::begin(extensions), std::end(extensions), [&name](QLatin1String each) {
        return name.endsWith(each, Qt::CaseInsensitive);
    });
}

/// Tells whether \a name leaves it to the content what the file is taken for.
bool hasNoExtension(const QString &name)
{
    return name.lastIndexOf(QLatin1Char('.')) <= name.lastIndexOf(QLatin1Char('/'));
}

QString sizeFault(qint64 pixels, qint64 mostPixels)
{
    return pixels > mostPixels
               ? QStringLiteral("it has %1 pixels, more than %2").arg(pixels).arg(mostPixels)
               : QString();
}

/// Returns the format that \a device is read in. No other begins as most drawings do, and asking
/// takes longer than reading an icon.
QByteArray formatOf(QIODevice &device)
{
    static const QByteArray opening("<svg");
    return device.peek(opening.size()) == opening ? QByteArray("svg")
                                                  : QImageReader(&device).format();
}

QString contentFault(QIODevice &device)
{
    QString fault = drawingFault(device.read(FileLimits::drawingBytes + 1));
    device.seek(0);
    return fault;
}

} // namespace

QString pictureFault(QIODevice &device, const QString &name, const PictureUse &use)
{
    const QByteArray format = formatOf(device);
    const bool isReadAsDrawing = format.startsWith("svg");
    if (isReadAsDrawing || isNamedLikeDrawing(name) || (format.isEmpty() && hasNoExtension(name))) {
        // Asking for a drawing's size has it rendered in parts, so this comes first.
        QString fault = contentFault(device);
        if (!fault.isEmpty()) {
            return fault;
        }
    }
    return isReadAsDrawing && !use.atOwnSize ? QString()
                                             : sizeFault(rasterPixels(device), use.mostPixels);
}

} // namespace TARN
