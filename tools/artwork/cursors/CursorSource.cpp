#include "cursors/CursorSource.h"

#include <QtCore/QFileInfo>
#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>

#include <cmath>

namespace TARN::Artwork {

namespace {

constexpr QSize CursorSize(CursorExtent, CursorExtent);

/// Returns what is wrong with the drawing; empty when nothing is.
QString fault(const QSvgRenderer &drawing)
{
    if (!drawing.isValid()) {
        return QStringLiteral("is no SVG file");
    }
    if (drawing.viewBoxF() != QRectF(QPointF(), CursorSize) ||
        drawing.defaultSize() != CursorSize) {
        return QStringLiteral("is not drawn on %1 x %1 units from the origin").arg(CursorExtent);
    }
    if (!drawing.elementExists(QStringLiteral("hotspot"))) {
        return QStringLiteral("has no element \"hotspot\"");
    }
    return {};
}

QPoint hotspotOf(const QSvgRenderer &drawing)
{
    const QPointF center = drawing.boundsOnElement(QStringLiteral("hotspot")).center();
    return {int(std::floor(center.x())), int(std::floor(center.y()))};
}

QImage imageOf(QSvgRenderer *drawing)
{
    QImage image(CursorSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    drawing->render(&painter);
    return image;
}

} // namespace

std::optional<CursorPicture> readCursorSource(const QString &path, QStringList *errors)
{
    const auto refuse = [&](const QString &reason) {
        errors->append(QStringLiteral("%1 %2").arg(QFileInfo(path).fileName(), reason));
        return std::nullopt;
    };

    QSvgRenderer drawing(path);
    const QString reason = fault(drawing);
    if (!reason.isEmpty()) {
        return refuse(reason);
    }
    const QPoint hotspot = hotspotOf(drawing);
    if (!QRect(QPoint(), CursorSize).contains(hotspot)) {
        return refuse(QStringLiteral("has its hotspot outside, at (%1, %2)")
                          .arg(hotspot.x())
                          .arg(hotspot.y()));
    }
    return CursorPicture{imageOf(&drawing), hotspot};
}

} // namespace TARN::Artwork
