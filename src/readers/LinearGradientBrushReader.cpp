#include "readers/LinearGradientBrushReader.h"

#include "readers/ConfigurationTags.h"
#include "resources/files/FileLimits.h"

#include <QtCore/QDebug>
#include <QtCore/QVector>
#include <QtGui/QLinearGradient>
#include <QtXml/QDomElement>

#include <optional>

namespace {

/// Returns the stop that \a element defines, and makes \a ok false when the definition is faulty.
QGradientStop readStop(const QDomElement &element, const QMap<QString, QColor> &colors, bool &ok)
{
    bool offsetOk = false;
    const double offset =
        element.attribute(TARN::GradientStopPositionAttribute).toDouble(&offsetOk);
    const QColor color = colors.value(element.text());
    ok = ok && offsetOk && color.isValid();
    return {offset, color};
}

/// Returns the stops that \a element defines, and makes \a ok false when one of them is faulty.
/// Returns nothing, with a warning, when there are more than any gradient has: putting them in
/// order would take long.
std::optional<QGradientStops> readStops(const QDomElement &element,
                                        const QMap<QString, QColor> &colors, bool &ok)
{
    QGradientStops stops;
    for (QDomElement stop = element.firstChildElement(TARN::GradientStopTag); !stop.isNull();
         stop = stop.nextSiblingElement(TARN::GradientStopTag)) {
        if (stops.size() == TARN::FileLimits::gradientStops) {
            qWarning().noquote() << "The brush" << element.attribute(TARN::NameAttribute)
                                 << "is not used: it has more than"
                                 << TARN::FileLimits::gradientStops << "stops";
            return std::nullopt;
        }
        stops.append(readStop(stop, colors, ok));
    }
    return stops;
}

} // namespace

QPointF LinearGradientBrushReader::parsePoint(const QString &text, bool &ok) const
{
    static const QString pointSeparator = QStringLiteral(",");
    const QVector<QStringRef> parts =
        text.splitRef(pointSeparator, Qt::KeepEmptyParts, Qt::CaseSensitive);
    ok = parts.size() == 2;
    if (!ok) {
        return {};
    }
    bool xOk = false;
    bool yOk = false;
    const double x = parts[0].toDouble(&xOk);
    const double y = parts[1].toDouble(&yOk);
    ok = xOk && yOk;
    return {x, y};
}

QBrush LinearGradientBrushReader::readBrush(const QDomElement &element,
                                            const QMap<QString, QColor> &colors, bool &ok) const
{
    bool startOk = false;
    bool endOk = false;
    const QPointF start =
        parsePoint(element.attribute(TARN::LinearGradientBrushStartAttribute), startOk);
    const QPointF end = parsePoint(element.attribute(TARN::LinearGradientBrushEndAttribute), endOk);
    ok = startOk && endOk;

    const std::optional<QGradientStops> stops = readStops(element, colors, ok);
    if (!stops) {
        ok = false;
        return {};
    }
    QLinearGradient gradient(start, end);
    gradient.setCoordinateMode(QGradient::ObjectBoundingMode);
    gradient.setStops(*stops);
    return {gradient};
}
