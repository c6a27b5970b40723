#include "icons/Cut.h"

#include <vector>

namespace TARN::Artwork {

namespace {

// Finer than anything that can be seen on a grid of 32 units.
constexpr int Samples = 64;
constexpr int Bisections = 12;

struct Segment
{
    QPointF points[4];
    bool isCurve = false;

    [[nodiscard]] QPointF at(double t) const { return upTo(t).points[3]; }

    /// The part from the beginning to \a t, by de Casteljau's construction.
    [[nodiscard]] Segment upTo(double t) const
    {
        const auto between = [t](QPointF a, QPointF b) { return a + (b - a) * t; };
        const QPointF a = between(points[0], points[1]);
        const QPointF b = between(points[1], points[2]);
        const QPointF c = between(points[2], points[3]);
        const QPointF ab = between(a, b);
        return {{points[0], a, ab, between(ab, between(b, c))}, isCurve};
    }

    [[nodiscard]] Segment reversed() const
    {
        return {{points[3], points[2], points[1], points[0]}, isCurve};
    }

    [[nodiscard]] Segment between(double from, double to) const
    {
        const Segment head = upTo(to);
        return to > 0 ? head.reversed().upTo(1 - from / to).reversed() : head;
    }
};

Segment straight(QPointF from, QPointF to)
{
    return {{from, from + (to - from) / 3, from + (to - from) * 2 / 3, to}, false};
}

using Piece = std::vector<Segment>;

/// Returns the segments of each subpath.
std::vector<Piece> pieces(const QPainterPath &path)
{
    std::vector<Piece> result;
    QPointF current;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        if (element.isMoveTo()) {
            result.emplace_back();
        } else if (element.isLineTo()) {
            result.back().push_back(straight(current, element));
        } else if (element.isCurveTo()) {
            result.back().push_back(
                {{current, element, path.elementAt(i + 1), path.elementAt(i + 2)}, true});
            i += 2;
        }
        current = path.elementAt(i);
    }
    return result;
}

/// Returns where between \a low and \a high the segment passes the region's edge.
double edge(const Segment &segment, const QPainterPath &region, double low, double high)
{
    const bool isInside = region.contains(segment.at(low));
    for (int i = 0; i < Bisections; ++i) {
        const double middle = (low + high) / 2;
        (region.contains(segment.at(middle)) == isInside ? low : high) = middle;
    }
    return (low + high) / 2;
}

void append(std::vector<Piece> *result, const Segment &segment)
{
    if (result->empty() || result->back().back().points[3] != segment.points[0]) {
        result->emplace_back();
    }
    result->back().push_back(segment);
}

void appendOutside(std::vector<Piece> *result, const Segment &segment, const QPainterPath &region)
{
    double begin = 0;
    bool isInside = region.contains(segment.at(0));
    for (int i = 1; i <= Samples; ++i) {
        const double t = double(i) / Samples;
        if (region.contains(segment.at(t)) == isInside) {
            continue;
        }
        const double crossing = edge(segment, region, double(i - 1) / Samples, t);
        if (!isInside) {
            append(result, segment.between(begin, crossing));
        }
        begin = crossing;
        isInside = !isInside;
    }
    if (!isInside) {
        append(result, begin > 0 ? segment.between(begin, 1) : segment);
    }
}

/// Returns what is outside of \a region of one subpath.
std::vector<Piece> outside(const Piece &subpath, const QPainterPath &region)
{
    std::vector<Piece> result;
    for (const Segment &segment : subpath) {
        appendOutside(&result, segment, region);
    }
    // What was cut out of a closed line leaves no seam where the line happened to begin.
    if (result.size() > 1 && result.back().back().points[3] == result.front().front().points[0]) {
        result.back().insert(result.back().end(), result.front().begin(), result.front().end());
        result.erase(result.begin());
    }
    return result;
}

void append(QPainterPath *path, const Piece &piece)
{
    path->moveTo(piece.front().points[0]);
    for (const Segment &segment : piece) {
        if (segment.isCurve) {
            path->cubicTo(segment.points[1], segment.points[2], segment.points[3]);
        } else {
            path->lineTo(segment.points[3]);
        }
    }
}

} // namespace

QPainterPath cutLine(const QPainterPath &line, const QPainterPath &region)
{
    QPainterPath result;
    for (const Piece &subpath : pieces(line)) {
        for (const Piece &piece : outside(subpath, region)) {
            append(&result, piece);
        }
    }
    return result;
}

} // namespace TARN::Artwork
