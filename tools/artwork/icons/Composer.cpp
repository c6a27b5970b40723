#include "icons/Composer.h"

#include "icons/Cut.h"
#include "icons/PathData.h"

#include <QtGui/QPainterPath>

namespace TARN::Artwork {

namespace {

// A hair more than the one unit that is meant: the toolkit draws lines of up to one pixel by a fast
// way that leaves slanted ones too thin. Antialiasing does not see the difference.
constexpr double LineWidth = 1.01;
// A groove is wider than a line: a gap of one unit looks closed between two lit areas.
constexpr double GrooveWidth = 1.5;
constexpr int MaxDepth = 8;

/// A shape in its place, on the way to the file.
struct Item
{
    Paint paint;
    QString color;
    QString element;
    QTransform transform;
    QPainterPath path; ///< in its place
    bool hasHoles = false;
};

QPainterPath strokeOutline(const QPainterPath &path, double width)
{
    QPainterPathStroker stroker;
    stroker.setWidth(width);
    stroker.setCapStyle(Qt::RoundCap);
    stroker.setJoinStyle(Qt::RoundJoin);
    stroker.setCurveThreshold(0.02);
    return stroker.createStroke(path);
}

QPainterPath clearedRegion(const Item &item)
{
    return item.paint == Paint::Groove ? strokeOutline(item.path, GrooveWidth).simplified()
                                       : item.path;
}

/// Replaces the geometry of \a item.
void reshape(Item *item, const QPainterPath &path)
{
    item->path = path;
    item->transform = QTransform();
    item->element =
        path.isEmpty() ? QString() : QStringLiteral("path d=\"%1\"").arg(pathData(path));
}

/// The toolkit's path operations turn curves into lines that are fine enough for pixels; the grid
/// is enlarged for them.
QPainterPath subtracted(const QPainterPath &path, const QPainterPath &region)
{
    const QTransform enlarged = QTransform::fromScale(16, 16);
    return enlarged.inverted().map(enlarged.map(path).subtracted(enlarged.map(region)));
}

void cutArea(Item *item, const QPainterPath &region)
{
    if (!item->path.intersects(region)) {
        return;
    }
    if (item->path.contains(region)) {
        // A hole, which keeps the curves as they are.
        QPainterPath path = item->path;
        path.addPath(region);
        reshape(item, path);
    } else {
        reshape(item, subtracted(item->path, region));
    }
    item->path.setFillRule(Qt::OddEvenFill);
    item->hasHoles = true;
}

void cutLineItem(Item *item, const QPainterPath &region)
{
    // The stroke is to stay out of the region, not only its middle.
    const QPainterPath wide = region.united(strokeOutline(region, LineWidth));
    const QPainterPath rest = cutLine(item->path, wide);
    if (rest != item->path) {
        reshape(item, rest);
    }
}

void cutItem(Item *item, const QPainterPath &region)
{
    if (item->paint == Paint::Line) {
        cutLineItem(item, region);
    } else {
        cutArea(item, region);
    }
}

class Flattening
{
public:
    Flattening(const QHash<QString, Drawing> &drawings, QStringList *errors)
        : m_drawings(drawings)
        , m_errors(errors)
    {
    }

    void add(const QString &name, const QTransform &transform, const QString &origin)
    {
        const auto drawing = m_drawings.constFind(name);
        if (drawing == m_drawings.constEnd() || m_depth == MaxDepth) {
            m_errors->append(origin + QStringLiteral(": no drawing is named \"%1\"").arg(name));
            return;
        }
        ++m_depth;
        for (const Layer &layer : drawing->layers) {
            if (const auto *reference = std::get_if<Reference>(&layer)) {
                add(reference->name, reference->transform * transform, drawing->origin);
            } else {
                add(std::get<Shape>(layer), transform, drawing->origin);
            }
        }
        --m_depth;
    }

    [[nodiscard]] const QVector<Item> &items() const { return m_items; }

private:
    void add(const Shape &shape, const QTransform &transform, const QString &origin)
    {
        Item item{shape.paint,
                  shape.color,
                  shape.element,
                  transform,
                  transform.map(pathOf(shape.element)),
                  false};
        if (item.path.isEmpty()) {
            m_errors->append(origin + QStringLiteral(": draws nothing: %1").arg(shape.element));
        } else if (shape.paint == Paint::Clear || shape.paint == Paint::Groove) {
            const QPainterPath region = clearedRegion(item);
            for (Item &below : m_items) {
                cutItem(&below, region);
            }
        } else {
            m_items.append(item);
        }
    }

    const QHash<QString, Drawing> &m_drawings;
    QStringList *m_errors;
    QVector<Item> m_items;
    int m_depth = 0;
};

QString transformText(const QTransform &transform)
{
    if (transform.isIdentity()) {
        return {};
    }
    QStringList numbers;
    for (const double value : {transform.m11(), transform.m12(), transform.m21(), transform.m22(),
                               transform.dx(), transform.dy()}) {
        numbers.append(shortNumber(value));
    }
    if (transform.type() == QTransform::TxTranslate) {
        return QStringLiteral(" transform=\"translate(%1 %2)\"").arg(numbers.at(4), numbers.at(5));
    }
    return QStringLiteral(" transform=\"matrix(%1)\"").arg(numbers.join(QLatin1Char(' ')));
}

QString paintText(const Item &item, const Palette &palette)
{
    const QString color = palette.value(item.color);
    if (item.paint == Paint::Line) {
        return item.color == u"ink" ? QString() : QStringLiteral(" stroke=\"%1\"").arg(color);
    }
    const QString opacity =
        item.paint == Paint::Soft ? QStringLiteral(" fill-opacity=\".3\"") : QString();
    const QString rule = item.hasHoles ? QStringLiteral(" fill-rule=\"evenodd\"") : QString();
    return QStringLiteral(" fill=\"%1\"%2%3 stroke=\"none\"").arg(color, opacity, rule);
}

/// Joins paths that are painted alike and follow each other, which makes short files.
QVector<Item> joined(const QVector<Item> &items)
{
    static const QString opening = QStringLiteral("path d=\"");
    QVector<Item> result;
    for (const Item &item : items) {
        if (item.element.isEmpty()) {
            continue;
        }
        const bool joins =
            !result.isEmpty() && item.paint == Paint::Line && result.last().paint == item.paint &&
            result.last().color == item.color && result.last().transform == item.transform &&
            item.element.startsWith(opening) && result.last().element.startsWith(opening);
        if (joins) {
            result.last().element.chop(1);
            result.last().element += item.element.midRef(opening.size());
        } else {
            result.append(item);
        }
    }
    return result;
}

} // namespace

Composer::Composer(const QHash<QString, Drawing> &drawings)
    : m_drawings(drawings)
{
}

QByteArray Composer::compose(const QString &name, const Palette &palette, QStringList *errors) const
{
    Flattening flattening(m_drawings, errors);
    flattening.add(name, QTransform(), name);
    QString svg =
        QStringLiteral("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"%1\" "
                       "height=\"%1\" viewBox=\"0 0 %1 %1\" fill=\"none\" stroke=\"%2\" "
                       "stroke-width=\"%3\" stroke-linecap=\"round\" stroke-linejoin=\"round\">\n")
            .arg(gridSize(name))
            .arg(palette.value(QStringLiteral("ink")), shortNumber(LineWidth));
    for (const Item &item : joined(flattening.items())) {
        if (!palette.contains(item.color)) {
            errors->append(name + QStringLiteral(": no colour is named \"%1\"").arg(item.color));
        }
        svg += QStringLiteral("<%1%2%3/>\n")
                   .arg(item.element, paintText(item, palette), transformText(item.transform));
    }
    return (svg + QStringLiteral("</svg>\n")).toUtf8();
}

} // namespace TARN::Artwork
