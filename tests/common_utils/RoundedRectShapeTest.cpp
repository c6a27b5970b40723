#include <common_utils/Helpers.h>

#include <QtTest/QtTest>

#include <limits>
#include <support/PainterState.h>
#include <support/painting/CountingDevice.h>

using TARN::Helpers::drawRoundedRectShape;
using namespace TARN::Helpers;

namespace {

constexpr QSize canvasSize(64, 48);
constexpr QRect shapeRect(8, 6, 48, 36);

struct Corner
{
    StraightCornerFlag flag;
    QPoint pixel;
};

const Corner corners[] = {{StraightTopLeft, shapeRect.topLeft()},
                          {StraightTopRight, shapeRect.topRight()},
                          {StraightBottomRight, shapeRect.bottomRight()},
                          {StraightBottomLeft, shapeRect.bottomLeft()}};

template <typename Paint>
QImage painted(Paint paint)
{
    QImage canvas(canvasSize, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::white);
    QPainter painter(&canvas);
    paint(&painter);
    return canvas;
}

template <typename Paint>
QImage filled(Paint paint)
{
    return painted([&](QPainter *painter) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(Qt::black);
        paint(painter);
    });
}

QImage filledShape(const QRectF &rect, int radius, StraightCornerFlags flags)
{
    return filled([&](QPainter *painter) {
        painter->setRenderHint(QPainter::Antialiasing);
        drawRoundedRectShape(rect, radius, flags, painter);
    });
}

bool isBlank(const QImage &image)
{
    return image == painted([](QPainter *) {});
}

} // namespace

class RoundedRectShapeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void squaresTheNamedCornersOnly_data();
    void squaresTheNamedCornersOnly();
    void roundCornersAreAlikeInEveryCombination();
    void roundCornerIsAQuarterCircle();
    void strokesTheOutline();
    void clampsTheRadius();
    void withoutRadiusIsTheExactRectangle();
    void leavesThePainterAsFound_data();
    void leavesThePainterAsFound();
    void drawsNothingWithoutPainterOrRectangle();
    void copesWithRectanglesBeyondTheDevice();
};

void RoundedRectShapeTest::squaresTheNamedCornersOnly_data()
{
    QTest::addColumn<int>("flags");
    for (int flags = 0; flags < 32; ++flags) {
        QTest::addRow("%d", flags) << flags;
    }
}

void RoundedRectShapeTest::squaresTheNamedCornersOnly()
{
    QFETCH(int, flags);
    const StraightCornerFlags straight(flags);
    const QImage image = filledShape(shapeRect, 8, straight);
    for (const Corner &corner : corners) {
        const QColor expected = straight.testFlag(corner.flag) ? Qt::black : Qt::white;
        QCOMPARE(image.pixelColor(corner.pixel), expected);
    }
    QCOMPARE(image.pixelColor(shapeRect.center()), QColor(Qt::black));
}

void RoundedRectShapeTest::roundCornersAreAlikeInEveryCombination()
{
    const QImage round = filledShape(shapeRect, 8, {});
    for (int flags = 1; flags < 15; ++flags) {
        const QImage image = filledShape(shapeRect, 8, StraightCornerFlags(flags));
        for (const Corner &corner : corners) {
            if (!StraightCornerFlags(flags).testFlag(corner.flag)) {
                QRect area(0, 0, 17, 17);
                area.moveCenter(corner.pixel);
                QCOMPARE(image.copy(area), round.copy(area));
            }
        }
    }
}

void RoundedRectShapeTest::roundCornerIsAQuarterCircle()
{
    constexpr int radius = 12;
    const QImage image = filledShape(shapeRect, radius, StraightTopRight);
    const QPointF center = QPointF(shapeRect.topLeft()) + QPointF(radius, radius);
    for (int y = 0; y < radius; ++y) {
        for (int x = 0; x < radius; ++x) {
            const QPoint pixel = shapeRect.topLeft() + QPoint(x, y);
            const qreal distance = QLineF(center, QPointF(pixel) + QPointF(0.5, 0.5)).length();
            if (distance < radius - 1) {
                QCOMPARE(image.pixelColor(pixel), QColor(Qt::black));
            } else if (distance > radius + 1) {
                QCOMPARE(image.pixelColor(pixel), QColor(Qt::white));
            }
        }
    }
}

void RoundedRectShapeTest::strokesTheOutline()
{
    for (const int flags : {0, 3, 15}) {
        const QImage image = painted([&](QPainter *painter) {
            painter->setRenderHint(QPainter::Antialiasing);
            painter->setPen(QPen(Qt::red, 1));
            painter->setBrush(Qt::blue);
            drawRoundedRectShape(QRectF(shapeRect).adjusted(0.5, 0.5, -0.5, -0.5), 6,
                                 StraightCornerFlags(flags), painter);
        });
        const QPoint center = shapeRect.center();
        QCOMPARE(image.pixelColor(center.x(), shapeRect.top()), QColor(Qt::red));
        QCOMPARE(image.pixelColor(center.x(), shapeRect.bottom()), QColor(Qt::red));
        QCOMPARE(image.pixelColor(shapeRect.left(), center.y()), QColor(Qt::red));
        QCOMPARE(image.pixelColor(shapeRect.right(), center.y()), QColor(Qt::red));
        QCOMPARE(image.pixelColor(center.x(), shapeRect.top() + 1), QColor(Qt::blue));
        QCOMPARE(image.pixelColor(center.x(), shapeRect.top() - 1), QColor(Qt::white));
    }
}

void RoundedRectShapeTest::clampsTheRadius()
{
    for (const int flags : {0, 1, 5, 14}) {
        const StraightCornerFlags straight(flags);
        const QImage half = filledShape(shapeRect, shapeRect.height() / 2, straight);
        QCOMPARE(filledShape(shapeRect, 1000, straight), half);
        QCOMPARE(filledShape(shapeRect, std::numeric_limits<int>::max(), straight), half);
        QVERIFY(filledShape(shapeRect, shapeRect.height() / 2 - 2, straight) != half);
    }
}

void RoundedRectShapeTest::withoutRadiusIsTheExactRectangle()
{
    const QImage expected = filled([](QPainter *painter) { painter->drawRect(shapeRect); });
    QVERIFY(!isBlank(expected));
    for (const int radius : {0, -1, std::numeric_limits<int>::min()}) {
        for (const int flags : {0, 1, 6, 15, 16}) {
            QCOMPARE(filledShape(shapeRect, radius, StraightCornerFlags(flags)), expected);
        }
    }
    QCOMPARE(filledShape(shapeRect, 8, StraightCornerFlags(15)), expected);
}

void RoundedRectShapeTest::leavesThePainterAsFound_data()
{
    QTest::addColumn<int>("radius");
    QTest::addColumn<int>("flags");
    QTest::newRow("rectangle") << 0 << 0;
    QTest::newRow("round") << 5 << 16;
    QTest::newRow("mixed") << 5 << 6;
}

void RoundedRectShapeTest::leavesThePainterAsFound()
{
    QFETCH(int, radius);
    QFETCH(int, flags);
    QImage canvas(canvasSize, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::white);
    const QImage before = canvas.copy();
    QPainter painter(&canvas);
    setUnusualState(&painter);
    const PainterState state(painter);
    drawRoundedRectShape(shapeRect, radius, StraightCornerFlags(flags), &painter);
    QCOMPARE(state.differences(painter), QStringList());
    QVERIFY(canvas != before);
}

void RoundedRectShapeTest::drawsNothingWithoutPainterOrRectangle()
{
    drawRoundedRectShape(shapeRect, 4, {}, nullptr);
    for (const QRectF &rect : {QRectF(), QRectF(5, 5, 0, 9), QRectF(5, 5, 9, 0),
                               QRectF(30, 30, -20, 10), QRectF(30, 30, 10, -20)}) {
        const QImage image = painted([&](QPainter *painter) {
            painter->setPen(QPen(Qt::black, 3));
            painter->setBrush(Qt::black);
            drawRoundedRectShape(rect, 4, StraightTopLeft, painter);
        });
        QVERIFY(isBlank(image));
    }
}

void RoundedRectShapeTest::copesWithRectanglesBeyondTheDevice()
{
    constexpr qreal nan = std::numeric_limits<qreal>::quiet_NaN();
    constexpr qreal infinity = std::numeric_limits<qreal>::infinity();
    constexpr qreal huge = 1e300;
    for (const int flags : {0, 2, 15}) {
        for (const QRectF &rect :
             {QRectF(nan, 0, 9, 9), QRectF(0, nan, 9, 9), QRectF(0, 0, nan, 9),
              QRectF(0, 0, 9, nan), QRectF(-infinity, 0, infinity, 9),
              QRectF(0, 0, infinity, infinity), QRectF(huge, huge, huge, huge)}) {
            QVERIFY(isBlank(filledShape(rect, 4, StraightCornerFlags(flags))));
        }
        const auto drawHugeShape = [&](QPainter *painter) {
            painter->setRenderHint(QPainter::Antialiasing);
            painter->setPen(QPen(Qt::red, 1, Qt::DashLine));
            painter->setBrush(Qt::black);
            drawRoundedRectShape(QRectF(-huge, -huge, 2 * huge, 2 * huge), 4,
                                 StraightCornerFlags(flags), painter);
        };
        CountingDevice device({60, 60});
        QPainter painter(&device);
        drawHugeShape(&painter);
        painter.end();
        // The dashes of a longer outline would take for ever.
        QVERIFY2(device.reach() <= 1e6, qPrintable(QString::number(device.reach())));
        const QImage covered = painted(drawHugeShape);
        QCOMPARE(covered.pixelColor(20, 20), QColor(Qt::black));
        QCOMPARE(covered.pixelColor(0, 0), QColor(Qt::black));
    }
}

QTEST_MAIN(RoundedRectShapeTest)
#include "RoundedRectShapeTest.moc"
