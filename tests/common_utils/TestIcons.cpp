#include "common_utils/TestIcons.h"

#include <common_utils/Helpers.h>

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtGui/QPainter>

#include <algorithm>

QByteArray svg(const QByteArray &content)
{
    return R"(<svg xmlns="http://www.w3.org/2000/svg" width="16" height="16" viewBox="0 0 16 16">)" +
           content + "</svg>";
}

QString writeSvg(const QByteArray &document)
{
    static const QTemporaryDir directory;
    static int number = 0;
    QString path = directory.filePath(QString::number(++number) + QLatin1String(".svg"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(document) != document.size()) {
        qFatal("The test can't write %s", qPrintable(path));
    }
    return path;
}

QIcon svgIcon(const QByteArray &content)
{
    return QIcon(writeSvg(svg(content)));
}

QIcon tinted(const QIcon &icon, const QBrush &brush, bool disabled)
{
    return TARN::Helpers::getModifiedIconWithForegroundBrush(icon, foreground, brush, disabled);
}

QImage pixels(const QIcon &icon, int size, QIcon::Mode mode, QIcon::State state)
{
    return icon.pixmap(QSize(size, size), mode, state)
        .toImage()
        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

QImage painted(const QIcon &icon, const QSize &size, qreal devicePixelRatio)
{
    QImage image(size * devicePixelRatio, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    image.setDevicePixelRatio(devicePixelRatio);
    QPainter painter(&image);
    icon.paint(&painter, QRect(QPoint(), size));
    painter.end();
    image.setDevicePixelRatio(1);
    return image;
}

int largestDifference(const QImage &a, const QImage &b)
{
    if (a.size() != b.size() || a.format() != b.format()) {
        return 256;
    }
    int largest = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width() * 4; ++x) {
            largest = std::max(largest, qAbs(a.constScanLine(y)[x] - b.constScanLine(y)[x]));
        }
    }
    return largest;
}

QPixmap plainPixmap(const QSize &size, const QColor &color)
{
    QPixmap pixmap(size);
    pixmap.fill(color);
    return pixmap;
}

void CountingEngine::paint(QPainter *painter, const QRect &rect, QIcon::Mode /*mode*/,
                           QIcon::State /*state*/)
{
    ++*m_count;
    painter->fillRect(rect, foreground);
}

QPixmap CountingEngine::pixmap(const QSize &size, QIcon::Mode /*mode*/, QIcon::State /*state*/)
{
    ++*m_count;
    return plainPixmap(size, foreground);
}

QSize CountingEngine::actualSize(const QSize &size, QIcon::Mode /*mode*/, QIcon::State /*state*/)
{
    ++*m_count;
    return size;
}

void BadgeEngine::paint(QPainter *painter, const QRect &rect, QIcon::Mode mode,
                        QIcon::State /*state*/)
{
    ++m_badge->paintings;
    const bool isOwn = mode == QIcon::Disabled && m_badge->disabledColor.isValid();
    painter->fillRect(rect, isOwn ? m_badge->disabledColor : m_badge->color);
}

QPixmap BadgeEngine::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    QPixmap pixmap = plainPixmap(size / m_badge->divisor, Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, pixmap.rect(), mode, state);
    return pixmap;
}

QSize BadgeEngine::actualSize(const QSize &size, QIcon::Mode /*mode*/, QIcon::State /*state*/)
{
    return size / m_badge->divisor;
}
