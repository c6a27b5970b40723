#include "support/pictures/PictureSheet.h"

#include <QtCore/QSet>
#include <QtGui/QImageReader>
#include <QtGui/QImageWriter>
#include <QtGui/QPainter>

#include <support/Text.h>

namespace {

const QString namesKey = text("Pictures");

constexpr QRgb ground = 0xff808080;
constexpr QRgb mark = 0xffff0000;
constexpr int largestTable = 256;
/// No eye tells such colours apart. Processors do not round mixed ones all alike.
constexpr int tolerance = 2;

bool isNear(QRgb one, QRgb other)
{
    return qAbs(qRed(one) - qRed(other)) <= tolerance &&
           qAbs(qGreen(one) - qGreen(other)) <= tolerance &&
           qAbs(qBlue(one) - qBlue(other)) <= tolerance;
}

/// Returns \a picture with a table of its colours, or as it is when it has too many of them.
QImage packed(const QImage &picture)
{
    QHash<QRgb, int> indices;
    QVector<QRgb> colors;
    QImage indexed(picture.size(), QImage::Format_Indexed8);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb color = picture.pixel(x, y);
            auto index = indices.constFind(color);
            if (index == indices.constEnd()) {
                if (colors.size() == largestTable) {
                    return picture;
                }
                index = indices.insert(color, colors.size());
                colors.append(color);
            }
            indexed.scanLine(y)[x] = uchar(*index);
        }
    }
    indexed.setColorTable(colors);
    return indexed;
}

/// Calls \a visit with the coordinates of each pixel in which the pictures differ; both are of one
/// size.
template <typename Visit>
void forEachDifference(const QImage &one, const QImage &other, const Visit &visit)
{
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            if (!isNear(one.pixel(x, y), other.pixel(x, y))) {
                visit(x, y);
            }
        }
    }
}

/// Returns what is to be said about a picture; nothing when it is as expected.
QString difference(const QImage &actual, const QImage &expected)
{
    if (actual.size() != expected.size()) {
        return text("is %1x%2 pixels large instead of %3x%4")
            .arg(actual.width())
            .arg(actual.height())
            .arg(expected.width())
            .arg(expected.height());
    }
    int count = 0;
    QRect area;
    forEachDifference(actual, expected, [&](int x, int y) {
        ++count;
        area |= QRect(x, y, 1, 1);
    });
    return count == 0 ? QString()
                      : text("differs in %1 pixels within %2x%3 at %4,%5")
                            .arg(count)
                            .arg(area.width())
                            .arg(area.height())
                            .arg(area.x())
                            .arg(area.y());
}

} // namespace

void PictureSheet::add(const QString &name, const QImage &picture)
{
    m_pictures[name] = {picture.convertToFormat(QImage::Format_RGB32), m_next};
    m_pictures[name].picture.setDevicePixelRatio(1);
    m_next.rx() += picture.width();
    m_rowHeight = qMax(m_rowHeight, picture.height());
}

void PictureSheet::endRow()
{
    m_next = QPoint(0, m_next.y() + m_rowHeight);
    m_rowHeight = 0;
}

QImage PictureSheet::arranged() const
{
    QRect area;
    for (const auto &[name, entry] : m_pictures) {
        area |= QRect(entry.position, entry.picture.size());
    }
    QImage image(area.size(), QImage::Format_RGB32);
    image.fill(ground);
    QPainter painter(&image);
    for (const auto &[name, entry] : m_pictures) {
        painter.drawImage(entry.position, entry.picture);
    }
    return image;
}

bool PictureSheet::save(const QString &path) const
{
    QStringList lines;
    for (const auto &[name, entry] : m_pictures) {
        lines.append(text("%1 %2 %3 %4 %5")
                         .arg(entry.position.x())
                         .arg(entry.position.y())
                         .arg(entry.picture.width())
                         .arg(entry.picture.height())
                         .arg(name));
    }
    QImage image = packed(arranged());
    image.setText(namesKey, lines.join(u'\n'));
    QImageWriter writer(path, "png");
    writer.setCompression(100);
    return writer.write(image);
}

PictureSheet PictureSheet::load(const QString &path)
{
    PictureSheet sheet;
    const QImage image = QImageReader(path, "png").read();
    for (const QString &line : image.text(namesKey).split(u'\n', Qt::SkipEmptyParts)) {
        const QRect area(line.section(u' ', 0, 0).toInt(), line.section(u' ', 1, 1).toInt(),
                         line.section(u' ', 2, 2).toInt(), line.section(u' ', 3, 3).toInt());
        const QImage picture = image.copy(area).convertToFormat(QImage::Format_RGB32);
        sheet.m_pictures[line.section(u' ', 4)] = {picture, area.topLeft()};
    }
    return sheet;
}

QStringList PictureSheet::differences(const PictureSheet &expected) const
{
    QStringList lines;
    for (const auto &[name, entry] : m_pictures) {
        const auto other = expected.m_pictures.find(name);
        const QString line = other == expected.m_pictures.end()
                                 ? text("is new")
                                 : difference(entry.picture, other->second.picture);
        if (!line.isEmpty()) {
            lines.append(name + u' ' + line);
        }
    }
    for (const auto &[name, entry] : expected.m_pictures) {
        if (m_pictures.find(name) == m_pictures.end()) {
            lines.append(name + text(" is gone"));
        }
    }
    return lines;
}

PictureSheet PictureSheet::markedDifferences(const PictureSheet &expected) const
{
    PictureSheet marked = *this;
    for (auto &[name, entry] : marked.m_pictures) {
        QImage &picture = entry.picture;
        const auto other = expected.m_pictures.find(name);
        if (other == expected.m_pictures.end() || picture.size() != other->second.picture.size()) {
            picture.fill(mark);
            continue;
        }
        const QImage actual = picture;
        picture.fill(ground);
        forEachDifference(actual, other->second.picture,
                          [&picture](int x, int y) { picture.setPixel(x, y, mark); });
    }
    return marked;
}
