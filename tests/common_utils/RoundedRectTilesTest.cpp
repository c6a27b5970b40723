#include <common_utils/Helpers.h>

#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtTest/QtTest>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <support/Text.h>

using namespace TARN::Helpers;

namespace {

QImage canvas(qreal scale)
{
    QImage image(QSize(260, 260) * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(QColor(40, 90, 140));
    return image;
}

struct Look
{
    QPen pen;
    QBrush brush;
    qreal inset = 0; ///< of the shape in its rectangle
};

/// Returns the look by the name of a row.
Look lookOf(const QString &name)
{
    const QPen solid(QColor(200, 30, 60), 1, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin);
    const QPen sheer(QColor(200, 30, 60, 120), 1, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin);
    const QColor fill(250, 240, 20);
    const QColor sheerFill(250, 240, 20, 90);
    if (name == text("outline")) {
        return {solid, Qt::NoBrush, 0.5};
    }
    if (name == text("fill")) {
        return {Qt::NoPen, fill, 0};
    }
    if (name == text("fill on the half pixel")) {
        return {Qt::NoPen, fill, 0.5};
    }
    if (name == text("both")) {
        return {solid, fill, 0.5};
    }
    return {sheer, sheerFill, 0.5};
}

/// Draws as the toolkit itself does, without any helper.
void drawReference(const QRectF &rect, qreal radius, QPainter &painter)
{
    painter.drawRoundedRect(rect, radius, radius);
}

QImage draw(qreal scale, const Look &look, const QSize &size, int radius, StraightCornerFlags flags,
            bool byHelper)
{
    QImage image = canvas(scale);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(look.pen);
    painter.setBrush(look.brush);
    const QRectF rect =
        QRectF(QPoint(7, 5), size).adjusted(look.inset, look.inset, -look.inset, -look.inset);
    if (byHelper) {
        drawRoundedRectShape(rect, radius, flags, &painter);
    } else {
        drawReference(rect, qMin<qreal>(radius, qMin(rect.width(), rect.height()) / 2), painter);
    }
    return image;
}

/// Returns how much the channels of the two pictures differ at most.
int largestDifference(const QImage &a, const QImage &b)
{
    int largest = 0;
    for (int y = 0; y < a.height(); ++y) {
        const uchar *first = a.constScanLine(y);
        const uchar *second = b.constScanLine(y);
        for (int i = 0; i < a.bytesPerLine(); ++i) {
            largest = std::max(largest, std::abs(first[i] - second[i]));
        }
    }
    return largest;
}

} // namespace

/// That shapes which are put together from kept pieces look as if drawn at once.
class RoundedRectTilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void looksAsDrawnAtOnce_data()
    {
        QTest::addColumn<qreal>("scale");
        QTest::addColumn<QString>("look");
        QTest::addColumn<QSize>("size");
        for (const qreal scale : {1.0, 2.0}) {
            for (const char *look :
                 {"outline", "fill", "fill on the half pixel", "both", "translucent"}) {
                for (const QSize &size : {QSize(9, 9), QSize(13, 40), QSize(28, 15), QSize(80, 26),
                                          QSize(200, 96), QSize(12, 230), QSize(150, 240)}) {
                    QTest::addRow("%s %dx%d at %g", look, size.width(), size.height(), scale)
                        << scale << text(look) << size;
                }
            }
        }
    }

    void looksAsDrawnAtOnce()
    {
        QFETCH(qreal, scale);
        QFETCH(QString, look);
        QFETCH(QSize, size);
        for (const int radius : {1, 3, 4, 8, 20}) {
            const QImage pieces = draw(scale, lookOf(look), size, radius, NoStraightCorner, true);
            const QImage whole = draw(scale, lookOf(look), size, radius, NoStraightCorner, false);
            // The toolkit's own curves differ by as much from place to place.
            QVERIFY2(largestDifference(pieces, whole) <= 24,
                     qPrintable(
                         text("radius %1: %2").arg(radius).arg(largestDifference(pieces, whole))));
        }
    }

    /// Each straight corner is filled to its outermost pixel, and no other one is.
    void straightCornersStayStraight()
    {
        const QSize size(90, 120);
        const Look look = lookOf(text("both"));
        const QRect outer(QPoint(7, 5), size);
        const std::array corners{outer.topLeft(), outer.topRight(), outer.bottomRight(),
                                 outer.bottomLeft()};
        for (int flags = 0; flags < 16; ++flags) {
            const QImage image = draw(1, look, size, 9, StraightCornerFlags(flags), true);
            for (std::size_t corner = 0; corner < corners.size(); ++corner) {
                const bool isStraight = (flags & 1 << corner) != 0;
                QCOMPARE(image.pixelColor(corners.at(corner)) == look.pen.color(), isStraight);
            }
        }
    }

    /// At fractional scales every straight edge is of one colour, as at whole ones.
    void edgesAreCrispAtFractionalScales_data()
    {
        QTest::addColumn<qreal>("scale");
        for (const qreal scale : {1.0, 1.25, 1.5, 1.75, 2.0}) {
            QTest::addRow("%g", scale) << scale;
        }
    }

    void edgesAreCrispAtFractionalScales()
    {
        QFETCH(qreal, scale);
        const Look look = lookOf(text("both"));
        for (int extent = 20; extent < 40; ++extent) {
            const QImage image = draw(scale, look, {extent, extent}, 4, NoStraightCorner, true);
            const int middle = int((7 + extent / 2) * scale);
            QSet<QRgb> colors;
            for (int y = 0; y < image.height(); ++y) {
                colors.insert(image.pixel(middle, y));
            }
            for (int x = 0; x < image.width(); ++x) {
                colors.insert(image.pixel(x, middle));
            }
            QCOMPARE(colors.size(), 3); // ground, outline, fill
        }
    }

    /// Outlines are as wide at the top and at the bottom as at the sides, whether the shape is kept
    /// whole or put together from pieces.
    void outlinesAreEvenAllAround_data()
    {
        QTest::addColumn<qreal>("scale");
        for (const qreal scale : {1.0, 1.5, 2.0, 2.5, 3.0, 4.0}) {
            QTest::addRow("%g", scale) << scale;
        }
    }

    void outlinesAreEvenAllAround()
    {
        QFETCH(qreal, scale);
        const Look look = lookOf(text("both"));
        const QRgb outline = look.pen.color().rgb();
        for (const int radius : {0, 1, 2}) {
            for (const QSize &size :
                 {QSize(12, 12), QSize(40, 20), QSize(40, 40), QSize(140, 30), QSize(140, 140)}) {
                const QImage image = draw(scale, look, size, radius, NoStraightCorner, true);
                const auto widthFrom = [&](QPoint place, const QPoint &step) {
                    int width = 0;
                    while (image.pixel(place) != outline) {
                        place += step;
                    }
                    for (; image.pixel(place) == outline; place += step) {
                        ++width;
                    }
                    return width;
                };
                const QPoint middle =
                    (QPointF(QRect(QPoint(7, 5), size).center()) * scale).toPoint();
                const int expected = qMax(1, int(scale));
                QCOMPARE(widthFrom({0, middle.y()}, {1, 0}), expected);
                QCOMPARE(widthFrom({image.width() - 1, middle.y()}, {-1, 0}), expected);
                QCOMPARE(widthFrom({middle.x(), 0}, {0, 1}), expected);
                QCOMPARE(widthFrom({middle.x(), image.height() - 1}, {0, -1}), expected);
            }
        }
    }

    void opacityAppliesToTheWholeShape()
    {
        QImage image = canvas(1);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setOpacity(0);
        painter.setPen(lookOf(text("both")).pen);
        painter.setBrush(lookOf(text("both")).brush);
        drawRoundedRectShape(QRectF(10.5, 10.5, 50, 30), 5, NoStraightCorner, &painter);
        painter.end();
        QCOMPARE(image, canvas(1));
    }

    /// Whatever is not plain is drawn as before: here a rotated shape, and one without smooth
    /// edges.
    void otherPaintersAreServedToo()
    {
        for (const bool rotated : {false, true}) {
            QImage images[] = {canvas(1), canvas(1)};
            for (const int index : {0, 1}) {
                QPainter painter(&images[index]);
                painter.setRenderHint(QPainter::Antialiasing, rotated);
                painter.translate(120, 20);
                painter.rotate(rotated ? 30 : 0);
                painter.setPen(lookOf(text("both")).pen);
                painter.setBrush(lookOf(text("both")).brush);
                const QRectF rect(0.5, 0.5, 60, 40);
                if (index == 0) {
                    drawReference(rect, 6, painter);
                } else {
                    drawRoundedRectShape(rect, 6, NoStraightCorner, &painter);
                }
            }
            QCOMPARE(images[1], images[0]);
            QVERIFY(images[1] != canvas(1));
        }
    }
};

QTEST_MAIN(RoundedRectTilesTest)
#include "RoundedRectTilesTest.moc"
