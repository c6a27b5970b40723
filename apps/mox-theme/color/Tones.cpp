#include "color/Tones.h"

#include <common_utils/Contrast.h>

#include <QtCore/QtMath>
#include <QtGui/QRgba64>

#include <algorithm>
#include <optional>

namespace TARN::ThemeTool {

namespace {

using Helpers::contrastRatio;
using Helpers::relativeLuminance;

// What the definition of contrast adds to both luminances.
constexpr double flare = 0.05;
// Keeps the rounding of a limit from shutting out the colour that lies upon it. Whether a demand is
// met, contrastRatio() alone decides.
constexpr double luminanceSlack = 1e-9;
// Finer than the steps of 8 bits, so that no tone is stepped over.
constexpr double lightnessStep = 1.0 / 8192;

struct Ground
{
    double luminance = 0;
    double ratio = 1;
};

struct LuminanceRange
{
    double from = 0;
    double to = 1;
};

QColor inEightBits(const QColor &color)
{
    return {color.rgb()};
}

QVector<Ground> groundsOf(const QVector<ContrastDemand> &demands)
{
    QVector<Ground> grounds;
    grounds.reserve(demands.size());
    for (const ContrastDemand &demand : demands) {
        grounds.append({relativeLuminance(inEightBits(demand.ground)), demand.ratio});
    }
    return grounds;
}

// Returns the luminances out of allowed that have the ratio asked for, times leniency, against
// every ground: each ground takes a gap around its own luminance out of them.
QVector<LuminanceRange> legibleRanges(const QVector<Ground> &grounds, const LuminanceRange &allowed,
                                      double leniency = 1)
{
    QVector<LuminanceRange> ranges = {allowed};
    for (const Ground &ground : grounds) {
        const double ratio = ground.ratio * leniency;
        if (ratio <= 1) {
            continue;
        }
        const double gapFrom = (ground.luminance + flare) / ratio - flare + luminanceSlack;
        const double gapTo = (ground.luminance + flare) * ratio - flare - luminanceSlack;
        QVector<LuminanceRange> remaining;
        for (const LuminanceRange &range : qAsConst(ranges)) {
            if (range.from <= gapFrom) {
                remaining.append({range.from, qMin(range.to, gapFrom)});
            }
            if (range.to >= gapTo) {
                remaining.append({qMax(range.from, gapTo), range.to});
            }
        }
        ranges = remaining;
    }
    return ranges;
}

// The colours of one hue and chroma from black to white.
class ToneScale
{
public:
    explicit ToneScale(const Oklch &wanted)
        : m_wanted(wanted)
    {
    }

    QColor tone(double lightness) const
    {
        return toColor({lightness, m_wanted.chroma, m_wanted.hue});
    }

    double distance(double lightness) const { return qAbs(lightness - m_wanted.lightness); }

    // Returns the lightness nearest to the wanted one whose tone is not short of the range, seen
    // from there. In a range narrower than a step of 8 bits the tone may lie beyond.
    double lightnessNear(const LuminanceRange &range) const
    {
        const double luminance = luminanceAt(m_wanted.lightness);
        if (luminance < range.from) {
            return firstLightness(1, [&](double value) { return value >= range.from; });
        }
        if (luminance > range.to) {
            return firstLightness(0, [&](double value) { return value <= range.to; });
        }
        return m_wanted.lightness;
    }

private:
    double luminanceAt(double lightness) const { return relativeLuminance(tone(lightness)); }

    template <typename Predicate>
    double firstLightness(double end, const Predicate &isReached) const
    {
        double before = m_wanted.lightness;
        double reached = end;
        while (qAbs(reached - before) > lightnessStep) {
            const double middle = (before + reached) / 2;
            (isReached(luminanceAt(middle)) ? reached : before) = middle;
        }
        return reached;
    }

    Oklch m_wanted;
};

// Keeps the colour nearest in lightness of those that meet the demands.
class NearestLegible
{
public:
    explicit NearestLegible(const QVector<ContrastDemand> &demands)
        : m_demands(demands)
    {
    }

    void offer(const QColor &color, double distance)
    {
        if ((!m_color || distance < m_distance) && meets(color, m_demands)) {
            m_color = color;
            m_distance = distance;
        }
    }

    const std::optional<QColor> &color() const { return m_color; }

private:
    QVector<ContrastDemand> m_demands;
    std::optional<QColor> m_color;
    double m_distance = 0;
};

// Greys have the finest steps of luminance: what no tint hits, one of them may.
std::optional<QColor> nearestGrey(const Oklch &wanted, const QVector<ContrastDemand> &demands,
                                  const QVector<LuminanceRange> &ranges)
{
    NearestLegible nearest(demands);
    for (int value = 0; value <= 255; ++value) {
        const QColor grey(value, value, value);
        const double luminance = relativeLuminance(grey);
        const bool isInRange =
            std::any_of(ranges.cbegin(), ranges.cend(), [&](const LuminanceRange &range) {
                return luminance >= range.from && luminance <= range.to;
            });
        if (isInRange) {
            nearest.offer(grey, qAbs(toOklch(grey).lightness - wanted.lightness));
        }
    }
    return nearest.color();
}

std::optional<QColor> nearestTone(const Oklch &wanted, const QVector<ContrastDemand> &demands,
                                  const QVector<LuminanceRange> &ranges)
{
    if (ranges.isEmpty()) {
        return std::nullopt;
    }
    for (const double chromaShare : {1.0, 0.75, 0.5, 0.25}) {
        const ToneScale scale({wanted.lightness, wanted.chroma * chromaShare, wanted.hue});
        NearestLegible nearest(demands);
        for (const LuminanceRange &range : ranges) {
            const double lightness = scale.lightnessNear(range);
            nearest.offer(scale.tone(lightness), scale.distance(lightness));
        }
        if (nearest.color()) {
            return nearest.color();
        }
    }
    return nearestGrey(wanted, demands, ranges);
}

// Returns the share of the ratio asked for that a colour reaches where it falls shortest.
double smallestShare(const QColor &color, const QVector<ContrastDemand> &demands)
{
    double share = 1;
    for (const ContrastDemand &demand : demands) {
        const double ratio = contrastRatio(color, inEightBits(demand.ground));
        share = qMin(share, ratio / demand.ratio);
    }
    return share;
}

// Returns the luminances that are left when all ratios are lowered alike until some are.
QVector<LuminanceRange> lenientRanges(const QVector<Ground> &grounds)
{
    QVector<LuminanceRange> ranges = legibleRanges(grounds, {});
    double reached = 0;
    double missed = 1;
    constexpr double precision = 1e-6;
    while (missed - reached > precision) {
        const double leniency = (reached + missed) / 2;
        const QVector<LuminanceRange> remaining = legibleRanges(grounds, {}, leniency);
        (remaining.isEmpty() ? missed : reached) = leniency;
        if (!remaining.isEmpty()) {
            ranges = remaining;
        }
    }
    return ranges;
}

QColor bestCompromise(const QColor &wanted, const QVector<ContrastDemand> &demands,
                      const QVector<Ground> &grounds)
{
    const ToneScale scale(toOklch(wanted));
    QColor best = wanted;
    double bestShare = smallestShare(wanted, demands);
    for (const LuminanceRange &range : lenientRanges(grounds)) {
        const double lightness = scale.lightnessNear(range);
        // The range is all but a point, and the better one of the tones around it is not foretold.
        for (const double step : {-lightnessStep, 0.0, lightnessStep}) {
            const QColor tone = scale.tone(lightness + step);
            const double share = smallestShare(tone, demands);
            if (share > bestShare) {
                best = tone;
                bestShare = share;
            }
        }
    }
    return best;
}

LuminanceRange allowedRange(const QColor &wanted, ToneSide side)
{
    switch (side) {
    case ToneSide::Lighter:
        return {relativeLuminance(wanted), 1};
    case ToneSide::Darker:
        return {0, relativeLuminance(wanted)};
    case ToneSide::Nearest:
        break;
    }
    return {};
}

} // namespace

bool meets(const QColor &color, const QVector<ContrastDemand> &demands)
{
    return std::all_of(demands.cbegin(), demands.cend(), [&](const ContrastDemand &demand) {
        return contrastRatio(inEightBits(color), inEightBits(demand.ground)) >= demand.ratio;
    });
}

QColor legibleTone(const QColor &wanted, const QVector<ContrastDemand> &demands, ToneSide side)
{
    QColor color = inEightBits(wanted);
    if (meets(color, demands)) {
        return color;
    }
    const Oklch oklch = toOklch(color);
    const QVector<Ground> grounds = groundsOf(demands);
    for (const ToneSide allowed : {side, ToneSide::Nearest}) {
        const auto ranges = legibleRanges(grounds, allowedRange(color, allowed));
        if (const auto tone = nearestTone(oklch, demands, ranges)) {
            return *tone;
        }
    }
    return bestCompromise(color, demands, grounds);
}

QColor mixed(const QColor &above, double opacity, const QColor &ground)
{
    // The painter holds an opacity in 256ths, cut off, and rounds either colour's share of a
    // channel to 8 bits before it adds them.
    QRgba64 source = above.rgba64();
    source.setAlpha(quint16((source.alpha() * uint(qBound(0.0, opacity, 1.0) * 256)) >> 8));
    const QRgb share = source.premultiplied().toArgb32();
    const int transparency = 255 - qAlpha(share);
    const QRgb behind = qPremultiply(
        qRgba(qRed(ground.rgb()), qGreen(ground.rgb()), qBlue(ground.rgb()), transparency));
    return {qRed(share) + qRed(behind), qGreen(share) + qGreen(behind),
            qBlue(share) + qBlue(behind)};
}

QColor lightened(const QColor &color, double steps)
{
    const Oklch oklch = toOklch(color);
    return toColor({oklch.lightness + steps / 100, oklch.chroma, oklch.hue});
}

QColor saturated(const QColor &color, double factor)
{
    const Oklch oklch = toOklch(color);
    return toColor({oklch.lightness, oklch.chroma * factor, oklch.hue});
}

} // namespace TARN::ThemeTool
