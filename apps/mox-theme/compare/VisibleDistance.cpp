#include "compare/VisibleDistance.h"

#include "color/Oklch.h"
#include "color/Tones.h"
#include "text/Literals.h"

#include <QtGui/QImage>
#include <QtGui/QPainter>

namespace TARN::ThemeTool {

namespace {

/// Gradients are compared in this many points along each side.
constexpr int samples = 16;

QImage painted(const QBrush &brush)
{
    QImage image(samples, samples, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.fillRect(image.rect(), brush);
    return image;
}

} // namespace

Visibility visibility(double distance)
{
    if (distance < 0.02) {
        return Visibility::Invisible;
    }
    if (distance < 0.05) {
        return Visibility::Slight;
    }
    return distance < 0.15 ? Visibility::Clear : Visibility::Strong;
}

QString word(Visibility visibility)
{
    switch (visibility) {
    case Visibility::Invisible:
        return "invisible"_s;
    case Visibility::Slight:
        return "slight"_s;
    case Visibility::Clear:
        return "clear"_s;
    case Visibility::Strong:
        break;
    }
    return "strong"_s;
}

double visibleDistance(const QColor &first, const QColor &second)
{
    double distance = 0;
    for (const QColor &ground : {QColor(Qt::black), QColor(Qt::white)}) {
        distance = qMax(distance, colorDistance(mixed(first, 1, ground), mixed(second, 1, ground)));
    }
    return distance;
}

double visibleDistance(const QBrush &first, const QBrush &second)
{
    if (first.style() == Qt::SolidPattern && second.style() == Qt::SolidPattern) {
        return visibleDistance(first.color(), second.color());
    }
    const QImage one = painted(first);
    const QImage other = painted(second);
    double distance = 0;
    for (int y = 0; y < samples; ++y) {
        for (int x = 0; x < samples; ++x) {
            distance =
                qMax(distance, visibleDistance(one.pixelColor(x, y), other.pixelColor(x, y)));
        }
    }
    return distance;
}

} // namespace TARN::ThemeTool
