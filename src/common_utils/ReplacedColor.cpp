#include "common_utils/ReplacedColor.h"

#include <QtCore/QSet>
#include <QtGui/QPainter>

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <vector>

namespace TARN::ReplacedColor {

namespace {

constexpr QImage::Format workingFormat = QImage::Format_ARGB32_Premultiplied;

/// By how much rounding may have moved a channel of a pixel.
constexpr double rounding = 1;
/// The same in a transparent pixel, which opacity and antialiasing have rounded one after the
/// other.
constexpr double repeatedRounding = 1.6;
/// Two colours nearer to each other than this can't be told apart in a mixture of both.
constexpr double leastDistance = 16;
/// A part this small is what rounding leaves of none.
constexpr double negligiblePart = 0.01;
/// Colours that are farther than this from each other differ even in nearly transparent pixels.
constexpr double similarDistance = 64;
/// The alpha from which a pixel shows its colour beyond doubt.
constexpr int clearlySeen = 128;
/// Antialiasing spreads an edge over two pixels at most, so what a pixel is a mixture of is found
/// within this distance.
constexpr int reach = 2;

/// A premultiplied pixel: alpha, red, green and blue, from 0 to 255.
using Channels = std::array<double, 4>;

Channels channelsOf(QRgb pixel)
{
    return {double(qAlpha(pixel)), double(qRed(pixel)), double(qGreen(pixel)),
            double(qBlue(pixel))};
}

double dotProduct(const Channels &a, const Channels &b)
{
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2] + a[3] * b[3];
}

double largestDifference(const Channels &a, const Channels &b)
{
    double difference = 0;
    for (size_t i = 0; i < a.size(); ++i) {
        difference = std::max(difference, std::abs(a[i] - b[i]));
    }
    return difference;
}

Channels scaled(const Channels &a, double factor)
{
    return {a[0] * factor, a[1] * factor, a[2] * factor, a[3] * factor};
}

Channels sum(const Channels &a, const Channels &b)
{
    return {a[0] + b[0], a[1] + b[1], a[2] + b[2], a[3] + b[3]};
}

/// Returns how far \a pixel, of which the alpha is not 0, is from being \a color at its own alpha.
double shadeError(const Channels &pixel, const Channels &color)
{
    return largestDifference(pixel, scaled(color, pixel[0] / color[0]));
}

/// Returns what part of \a pixel is \a a if it is a mixture of \a a, \a b and nothing, and no
/// value if it isn't.
std::optional<double> partInMixture(const Channels &pixel, const Channels &a, const Channels &b)
{
    if (shadeError(scaled(b, 255 / b[0]), a) < leastDistance) {
        return std::nullopt;
    }
    const double aa = dotProduct(a, a);
    const double bb = dotProduct(b, b);
    const double ab = dotProduct(a, b);
    const double determinant = aa * bb - ab * ab;
    const double pa = dotProduct(pixel, a);
    const double pb = dotProduct(pixel, b);
    const double partOfA = (pa * bb - pb * ab) / determinant;
    const double partOfB = (pb * aa - pa * ab) / determinant;
    constexpr double least = -0.02;
    const bool isMixture =
        partOfA >= least && partOfB >= least &&
        largestDifference(pixel, sum(scaled(a, partOfA), scaled(b, partOfB))) <= rounding;
    return isMixture ? std::optional<double>(qBound(0.0, partOfA, 1.0)) : std::nullopt;
}

QRgb toPixel(const Channels &channels)
{
    const int alpha = qBound(0, qRound(channels[0]), 255);
    const auto channel = [&](size_t i) { return qBound(0, qRound(channels[i]), alpha); };
    return qRgba(channel(1), channel(2), channel(3), alpha);
}

/// Finds out how much of one colour each pixel of a picture holds.
class ColorFinder
{
public:
    ColorFinder(const QImage &picture, QRgb color);

    const Channels &color() const { return m_color; }

    /// Returns the part of the colour in the pixel at \a x, \a y, from 0 to 1.
    double partAt(int x, int y) const;

private:
    enum class Kind : uchar {
        Transparent,
        /// The colour that is looked for, more or less transparent.
        Shade,
        /// Another colour that fills an area, and so is no product of antialiasing.
        Area,
        /// Anything else.
        Other
    };

    QRgb rgb(int x, int y) const
    {
        return reinterpret_cast<const QRgb *>(m_picture.constScanLine(y))[x];
    }
    Channels pixel(int x, int y) const { return channelsOf(rgb(x, y)); }

    Kind &kind(int x, int y) { return m_kinds[size_t(y) * size_t(m_picture.width()) + size_t(x)]; }
    Kind kind(int x, int y) const
    {
        return m_kinds[size_t(y) * size_t(m_picture.width()) + size_t(x)];
    }
    bool isClearly(Kind what, int x, int y) const
    {
        return kind(x, y) == what && qAlpha(rgb(x, y)) >= clearlySeen;
    }
    bool isPureColor(int x, int y) const
    {
        return kind(x, y) == Kind::Shade && qAlpha(rgb(x, y)) == 255;
    }

    Kind plainKind(QRgb value) const;
    void markAreas();
    void collectSimilarColors();
    bool belongsToSimilarColor(int x, int y) const;
    double partInMixtureAt(int x, int y) const;
    double bestPart(int x, int y, Kind kindOfOther) const;
    bool colorIsNear(int x, int y, const Channels &other) const;
    std::vector<Channels> colorsNear(int x, int y, Kind what) const;

    /// Returns the pixels within reach of the one at \a x, \a y.
    QRect within(int x, int y) const
    {
        return QRect(x - reach, y - reach, 2 * reach + 1, 2 * reach + 1) & m_picture.rect();
    }

    /// Returns whether \a matches the coordinates of the pixel or of one within reach of it.
    template <typename Matches>
    bool anyNear(int x, int y, Matches matches) const
    {
        const QRect area = within(x, y);
        for (int j = area.top(); j <= area.bottom(); ++j) {
            for (int i = area.left(); i <= area.right(); ++i) {
                if (matches(i, j)) {
                    return true;
                }
            }
        }
        return false;
    }

    QImage m_picture;
    Channels m_color;
    std::vector<Kind> m_kinds;
    std::vector<Channels> m_similarColors;
};

ColorFinder::ColorFinder(const QImage &picture, QRgb color)
    : m_picture(picture.convertToFormat(workingFormat))
    , m_color(channelsOf(color | 0xff000000))
    , m_kinds(size_t(picture.width()) * size_t(picture.height()))
{
    bool hasOthers = false;
    for (int y = 0; y < m_picture.height(); ++y) {
        for (int x = 0; x < m_picture.width(); ++x) {
            const Kind found = plainKind(rgb(x, y));
            kind(x, y) = found;
            hasOthers = hasOthers || found == Kind::Other;
        }
    }
    if (hasOthers) {
        markAreas();
        collectSimilarColors();
    }
}

ColorFinder::Kind ColorFinder::plainKind(QRgb value) const
{
    if (qAlpha(value) == 0) {
        return Kind::Transparent;
    }
    const double tolerance = qAlpha(value) == 255 ? rounding : repeatedRounding;
    return shadeError(channelsOf(value), m_color) <= tolerance ? Kind::Shade : Kind::Other;
}

void ColorFinder::markAreas()
{
    for (int y = 1; y < m_picture.height(); ++y) {
        for (int x = 1; x < m_picture.width(); ++x) {
            const QRgb value = rgb(x, y);
            const bool isArea = kind(x, y) != Kind::Transparent && kind(x, y) != Kind::Shade &&
                                value == rgb(x - 1, y) && value == rgb(x, y - 1) &&
                                value == rgb(x - 1, y - 1);
            if (isArea) {
                kind(x, y) = kind(x - 1, y) = Kind::Area;
                kind(x, y - 1) = kind(x - 1, y - 1) = Kind::Area;
            }
        }
    }
}

double ColorFinder::partAt(int x, int y) const
{
    switch (kind(x, y)) {
    case Kind::Transparent:
    case Kind::Area:
        return 0;
    case Kind::Shade:
        return belongsToSimilarColor(x, y) ? 0 : qAlpha(rgb(x, y)) / 255.0;
    case Kind::Other:
        break;
    }
    return partInMixtureAt(x, y);
}

/// Collects the colours, by what they are where they are clearly seen, that can't be told from
/// the one that is looked for in nearly transparent pixels. What is no area may be a mixture that
/// holds the colour itself, unless that is seen nowhere.
void ColorFinder::collectSimilarColors()
{
    bool colorIsSeen = false;
    for (int y = 0; y < m_picture.height(); ++y) {
        for (int x = 0; x < m_picture.width(); ++x) {
            colorIsSeen = colorIsSeen || isPureColor(x, y);
        }
    }
    QSet<QRgb> similar;
    for (int y = 0; y < m_picture.height(); ++y) {
        for (int x = 0; x < m_picture.width(); ++x) {
            const bool isColor =
                isClearly(Kind::Area, x, y) || (!colorIsSeen && isClearly(Kind::Other, x, y));
            if (isColor && shadeError(pixel(x, y), m_color) <= similarDistance) {
                similar.insert(rgb(x, y));
            }
        }
    }
    for (const QRgb value : qAsConst(similar)) {
        m_similarColors.push_back(channelsOf(value));
    }
}

/// Returns whether the pixel, which could be a shade of the colour that is looked for, rather is
/// one of a similar colour. Where the colour itself is near, the better explanation counts.
bool ColorFinder::belongsToSimilarColor(int x, int y) const
{
    const Channels value = pixel(x, y);
    const auto isColor = [this](int i, int j) { return isPureColor(i, j); };
    const bool colorIsNear = !m_similarColors.empty() && anyNear(x, y, isColor);
    const double limit = colorIsNear ? shadeError(value, m_color) : repeatedRounding;
    return std::any_of(m_similarColors.cbegin(), m_similarColors.cend(),
                       [&](const Channels &similar) { return shadeError(value, similar) < limit; });
}

/// What fills an area is a better explanation than a pixel that may itself be a mixture.
double ColorFinder::partInMixtureAt(int x, int y) const
{
    const double part = bestPart(x, y, Kind::Area);
    return part >= 0 ? part : qMax(0.0, bestPart(x, y, Kind::Other));
}

/// Returns the largest part that mixing the colour with a neighbour of \a kindOfOther explains,
/// or -1 if no such mixture explains the pixel. The largest part is that of the neighbour that
/// holds least of the colour itself.
double ColorFinder::bestPart(int x, int y, Kind kindOfOther) const
{
    const Channels value = pixel(x, y);
    double best = -1;
    for (const Channels &other : colorsNear(x, y, kindOfOther)) {
        const std::optional<double> part = partInMixture(value, m_color, other);
        if (part && *part < negligiblePart) {
            best = std::max(best, 0.0);
        } else if (part && *part > best && colorIsNear(x, y, other)) {
            best = *part;
        }
    }
    return best;
}

/// Returns the different pixels of the kind \a what within reach.
std::vector<Channels> ColorFinder::colorsNear(int x, int y, Kind what) const
{
    std::vector<Channels> colors;
    const QRect area = within(x, y);
    for (int j = area.top(); j <= area.bottom(); ++j) {
        for (int i = area.left(); i <= area.right(); ++i) {
            const Channels color = pixel(i, j);
            if (kind(i, j) == what &&
                std::find(colors.cbegin(), colors.cend(), color) == colors.cend()) {
                colors.push_back(color);
            }
        }
    }
    return colors;
}

/// A mixture is believed only where the colour is seen by itself or, in lines too thin for that,
/// makes up at least half of an opaque pixel. Nobody draws such lines on a similar colour.
bool ColorFinder::colorIsNear(int x, int y, const Channels &other) const
{
    const auto isColor = [this](int i, int j) { return isPureColor(i, j); };
    if (anyNear(x, y, isColor)) {
        return true;
    }
    if (shadeError(scaled(other, 255 / other[0]), m_color) <= similarDistance) {
        return false;
    }
    const auto isMostlyColor = [&](int i, int j) {
        return kind(i, j) == Kind::Other && qAlpha(rgb(i, j)) == 255 &&
               partInMixture(pixel(i, j), m_color, other).value_or(0) >= 0.5;
    };
    return anyNear(x, y, isMostlyColor);
}

} // namespace

QImage filledPicture(const QBrush &brush, const QSize &size, qreal scale)
{
    QImage picture(size, workingFormat);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.scale(scale, scale);
    painter.fillRect(QRectF(0, 0, size.width() / scale, size.height() / scale), brush);
    return picture;
}

QImage replacedColor(const QImage &picture, QRgb from, const QImage &replacement)
{
    const ColorFinder finder(picture, from);
    QImage result = picture.convertToFormat(workingFormat);
    for (int y = 0; y < result.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(result.scanLine(y));
        const auto *replacementLine = reinterpret_cast<const QRgb *>(replacement.constScanLine(y));
        for (int x = 0; x < result.width(); ++x) {
            const double part = finder.partAt(x, y);
            if (part <= 0) {
                continue;
            }
            Channels rest = sum(channelsOf(line[x]), scaled(finder.color(), -part));
            if (largestDifference(rest, {}) <= repeatedRounding) {
                rest = {};
            }
            line[x] = toPixel(sum(rest, scaled(channelsOf(replacementLine[x]), part)));
        }
    }
    return result;
}

} // namespace TARN::ReplacedColor
