#include "support/painting/Pixels.h"

#include <QtCore/QString>
#include <QtGui/QPixmap>

#include <support/themes/IconTheme.h>

namespace {

/// Calls \a visit with the place and the colour of every pixel.
template <typename Visit>
void visitPixels(const QImage &picture, Visit visit)
{
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            visit(QPoint(x, y), picture.pixelColor(x, y));
        }
    }
}

template <typename Holds>
QRect rectOf(const QImage &picture, Holds holds)
{
    QRect rect;
    visitPixels(picture, [&](const QPoint &place, const QColor &color) {
        if (holds(color)) {
            rect |= QRect(place, QSize(1, 1));
        }
    });
    return rect;
}

} // namespace

QImage plainPicture(const QSize &size, const QColor &color)
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(color);
    return picture;
}

QIcon squareIcon()
{
    return squareIcon(referenceForeground);
}

QIcon squareIcon(const QColor &color)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(color);
    return pixmap;
}

QString blocks(int count)
{
    return {count, QChar(0x2588)};
}

QRect extentOf(const QImage &picture, const QColor &color)
{
    return rectOf(picture, [&](const QColor &pixel) { return pixel == color; });
}

QRect paintedRect(const QImage &picture, const QColor &ground)
{
    return rectOf(picture, [&](const QColor &pixel) { return pixel != ground; });
}

int countOf(const QImage &picture, const QColor &color)
{
    int count = 0;
    visitPixels(picture, [&](const QPoint & /*place*/, const QColor &pixel) {
        count += pixel == color ? 1 : 0;
    });
    return count;
}

bool containsColor(const QImage &picture, const QColor &color)
{
    return countOf(picture, color) > 0;
}

bool areAlike(const QColor &one, const QColor &other)
{
    return qAbs(one.red() - other.red()) + qAbs(one.green() - other.green()) +
               qAbs(one.blue() - other.blue()) <
           30;
}

bool areAlike(const QImage &one, const QImage &other)
{
    bool isAlike = one.size() == other.size();
    visitPixels(one, [&](const QPoint &place, const QColor &color) {
        isAlike = isAlike && areAlike(color, other.pixelColor(place));
    });
    return isAlike;
}
