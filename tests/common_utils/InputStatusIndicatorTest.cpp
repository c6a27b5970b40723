#include <common_utils/Helpers.h>

#include <QtCore/QtMath>
#include <QtTest/QtTest>

#include <limits>
#include <support/PainterState.h>

using TARN::Helpers::drawInputStatusIndicator;

namespace {

const QColor background(0x1f, 0x25, 0x29);
const QColor danger(0xcf, 0x3f, 0x47);

struct Input
{
    QRectF rect{10, 10, 120, 24};
    int radius = 4;
    QColor color = danger;
    qreal devicePixelRatio = 1;
    Qt::LayoutDirection direction = Qt::LeftToRight;
};

QImage painted(const Input &input)
{
    QImage canvas(QSize(160, 60) * input.devicePixelRatio, QImage::Format_ARGB32_Premultiplied);
    canvas.setDevicePixelRatio(input.devicePixelRatio);
    canvas.fill(background);
    QPainter painter(&canvas);
    painter.setLayoutDirection(input.direction);
    drawInputStatusIndicator(input.rect, input.radius, input.color, &painter);
    return canvas;
}

template <typename Matches>
QRect boundsOf(const QImage &image, Matches matches)
{
    QRect bounds;
    for (int y = 0; y < image.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            if (matches(line[x])) {
                bounds |= QRect(x, y, 1, 1);
            }
        }
    }
    return bounds;
}

QRect touched(const QImage &image)
{
    return boundsOf(image, [](QRgb pixel) { return pixel != background.rgb(); });
}

int count(const QImage &image, const QColor &color)
{
    int found = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            found += image.pixelColor(x, y) == color ? 1 : 0;
        }
    }
    return found;
}

qreal relativeLuminance(const QColor &color)
{
    const auto linear = [](qreal value) {
        return value <= 0.03928 ? value / 12.92 : qPow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

qreal contrast(const QColor &a, const QColor &b)
{
    const qreal one = relativeLuminance(a);
    const qreal other = relativeLuminance(b);
    return (qMax(one, other) + 0.05) / (qMin(one, other) + 0.05);
}

} // namespace

class InputStatusIndicatorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void staysInsideTheRectangle_data();
    void staysInsideTheRectangle();
    void isSmallAndCenteredOnTheHeight();
    void standsAtTheTrailingEdge();
    void keepsClearOfRoundCorners();
    void showsTheColorAndAMarkThatStandsOut_data();
    void showsTheColorAndAMarkThatStandsOut();
    void exclamationMarkIsCrisp_data();
    void exclamationMarkIsCrisp();
    void drawsOnARotatedPainter();
    void drawsNothingOnBadInput();
    void leavesThePainterAsFound();
};

void InputStatusIndicatorTest::staysInsideTheRectangle_data()
{
    QTest::addColumn<qreal>("devicePixelRatio");
    for (const qreal ratio : {1.0, 1.25, 1.5, 1.75, 2.0, 3.0}) {
        QTest::addRow("%g", ratio) << ratio;
    }
}

void InputStatusIndicatorTest::staysInsideTheRectangle()
{
    QFETCH(qreal, devicePixelRatio);
    for (int halves = 4; halves <= 90; halves += 3) {
        const qreal height = halves / 2.0;
        for (const QPointF &origin : {QPointF(10, 10), QPointF(10.5, 10.5), QPointF(9.3, 7.8)}) {
            for (const int radius : {-3, 0, 4, 100}) {
                for (const qreal width : {14.0, 26.5, 120.0}) {
                    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
                        const QRectF rect(origin, QSizeF(width, height));
                        const QRect mark =
                            touched(painted({rect, radius, danger, devicePixelRatio, direction}));
                        const QRectF deviceRect(rect.topLeft() * devicePixelRatio,
                                                rect.size() * devicePixelRatio);
                        // Products of fractions are inexact in the last digits.
                        QVERIFY(
                            mark.isEmpty() ||
                            deviceRect.adjusted(-1e-3, -1e-3, 1e-3, 1e-3).contains(QRectF(mark)));
                    }
                }
            }
        }
    }
}

void InputStatusIndicatorTest::isSmallAndCenteredOnTheHeight()
{
    for (int height = 14; height <= 45; ++height) {
        Input input;
        input.rect.setHeight(height);
        const QRect mark = touched(painted(input));
        QCOMPARE(mark.width(), mark.height());
        QVERIFY(mark.height() <= 14);
        QVERIFY(mark.height() <= 0.6 * height + 0.5);
        QVERIFY(mark.height() >= qMin(13.0, 0.6 * height - 2));
        QVERIFY(qAbs(QRectF(mark).center().y() - input.rect.center().y()) <= 0.5);
    }
}

void InputStatusIndicatorTest::standsAtTheTrailingEdge()
{
    for (const int width : {60, 121}) {
        Input input;
        input.rect.setWidth(width);
        const QRect atRight = touched(painted(input));
        input.direction = Qt::RightToLeft;
        const QRect atLeft = touched(painted(input));
        QVERIFY(atRight.left() > input.rect.center().x());
        QVERIFY(atLeft.right() < input.rect.center().x());
        QCOMPARE(atLeft.size(), atRight.size());
        QCOMPARE(atLeft.top(), atRight.top());
        const int rightMargin = input.rect.toRect().right() - atRight.right();
        QCOMPARE(atLeft.left() - input.rect.toRect().left(), rightMargin);
    }
}

void InputStatusIndicatorTest::keepsClearOfRoundCorners()
{
    Input input;
    input.radius = 12;
    const QImage image = painted(input);
    QVERIFY(!touched(image).isEmpty());
    QImage frame(image.size(), QImage::Format_ARGB32_Premultiplied);
    frame.fill(Qt::white);
    QPainter painter(&frame);
    painter.setBrush(Qt::black);
    painter.setPen(Qt::NoPen);
    TARN::Helpers::drawRoundedRectShape(input.rect.adjusted(2, 2, -2, -2), input.radius - 2, {},
                                        &painter);
    painter.end();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            QVERIFY(image.pixelColor(x, y) == background ||
                    frame.pixelColor(x, y) == QColor(Qt::black));
        }
    }
}

void InputStatusIndicatorTest::showsTheColorAndAMarkThatStandsOut_data()
{
    QTest::addColumn<QColor>("color");
    for (const char *name : {"#cf3f47", "#e0525a", "#ff0000", "#f6b436", "#000000", "#ffffff",
                             "#808080", "#00c000", "#2060ff", "#ffff00"}) {
        QTest::newRow(name) << QColor(QLatin1String(name));
    }
}

void InputStatusIndicatorTest::showsTheColorAndAMarkThatStandsOut()
{
    QFETCH(QColor, color);
    for (const qreal ratio : {1.0, 2.0}) {
        Input input;
        input.color = color;
        input.devicePixelRatio = ratio;
        const QImage image = painted(input);
        const int area = touched(image).width() * touched(image).height();
        QVERIFY(count(image, color) > area / 2);
        const QPoint onStem = touched(image).center() - QPoint(0, qRound(2 * ratio));
        const QColor glyph = image.pixelColor(onStem);
        QVERIFY(glyph == QColor(Qt::white) || glyph == QColor(Qt::black));
        QVERIFY(count(image, glyph) >= area / 20);
        QVERIFY(contrast(glyph, color) >= 3);
    }
}

void InputStatusIndicatorTest::exclamationMarkIsCrisp_data()
{
    staysInsideTheRectangle_data();
}

void InputStatusIndicatorTest::exclamationMarkIsCrisp()
{
    QFETCH(qreal, devicePixelRatio);
    for (int height = 16; height <= 40; ++height) {
        Input input;
        input.rect = QRectF(10.3, 10.6, 120, height);
        input.devicePixelRatio = devicePixelRatio;
        const QImage image = painted(input);
        const QRect disc = touched(image);
        const QRect mark = boundsOf(image, [](QRgb pixel) { return pixel == qRgb(255, 255, 255); });
        QCOMPARE(mark.left() - disc.left(), disc.right() - mark.right());
        QCOMPARE(mark.top() - disc.top(), disc.bottom() - mark.bottom());
        for (int y = mark.top(); y <= mark.bottom(); ++y) {
            const QColor inRow = image.pixelColor(mark.left(), y);
            QVERIFY(inRow == QColor(Qt::white) || inRow == danger);
            for (int x = mark.left(); x <= mark.right(); ++x) {
                QCOMPARE(image.pixelColor(x, y), inRow);
            }
            QCOMPARE(image.pixelColor(mark.left() - 1, y), danger);
            QCOMPARE(image.pixelColor(mark.right() + 1, y), danger);
        }
    }
}

void InputStatusIndicatorTest::drawsOnARotatedPainter()
{
    QImage canvas(80, 200, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(background);
    QPainter painter(&canvas);
    painter.translate(40, 10);
    painter.rotate(90);
    drawInputStatusIndicator(QRectF(0, 0, 120, 24), 4, danger, &painter);
    painter.end();
    QVERIFY(count(canvas, danger) > 50);
    QVERIFY(QRect(16, 70, 24, 60).contains(touched(canvas)));
}

void InputStatusIndicatorTest::drawsNothingOnBadInput()
{
    constexpr qreal nan = std::numeric_limits<qreal>::quiet_NaN();
    constexpr qreal infinity = std::numeric_limits<qreal>::infinity();
    drawInputStatusIndicator(QRectF(0, 0, 100, 24), 4, danger, nullptr);
    QVERIFY(touched(painted({QRectF(10, 10, 100, 24), 4, QColor()})).isEmpty());
    for (const QRectF &rect :
         {QRectF(), QRectF(10, 10, 120, 8), QRectF(10, 10, 8, 24), QRectF(10, 10, -100, 24),
          QRectF(10, 10, 100, -24), QRectF(nan, 10, 100, 24), QRectF(10, nan, 100, 24),
          QRectF(10, 10, nan, 24), QRectF(10, 10, 100, infinity), QRectF(infinity, 0, 100, 24),
          QRectF(1e300, 0, 1e300, 24)}) {
        QVERIFY(touched(painted({rect, 4, danger})).isEmpty());
    }
}

void InputStatusIndicatorTest::leavesThePainterAsFound()
{
    QImage canvas(120, 120, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(background);
    QPainter painter(&canvas);
    setUnusualState(&painter);
    const PainterState state(painter);
    drawInputStatusIndicator(QRectF(10, 10, 80, 24), 4, danger, &painter);
    QCOMPARE(state.differences(painter), QStringList());
    QVERIFY(!touched(canvas).isEmpty());
}

QTEST_MAIN(InputStatusIndicatorTest)
#include "InputStatusIndicatorTest.moc"
