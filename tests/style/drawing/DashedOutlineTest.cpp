#include <style/drawing/DashedOutline.h>

#include <QtGui/QPainter>
#include <QtTest/QtTest>

#include <algorithm>
#include <cstdlib>
#include <functional>

namespace {

constexpr QColor ground(40, 90, 140);

QImage canvas(qreal scale)
{
    QImage image(QSize(260, 260) * scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(ground);
    return image;
}

/// Strokes the outline as the toolkit itself does, without any pictures.
void strokeReference(const QRect &rect, const QBrush &brush, QPainter &painter)
{
    QPen pen(brush, 0);
    pen.setDashPattern({2, 2});
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5), 1, 1);
}

QImage drawn(qreal scale, const std::function<void(QPainter &)> &draw)
{
    QImage image = canvas(scale);
    QPainter painter(&image);
    draw(painter);
    return image;
}

/// Returns how much the colours of the pictures differ at most: coverage is rounded once more
/// where it is kept.
int greatestDifference(const QImage &a, const QImage &b)
{
    int greatest = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb first = a.pixel(x, y);
            const QRgb second = b.pixel(x, y);
            greatest = std::max({greatest, std::abs(qRed(first) - qRed(second)),
                                 std::abs(qGreen(first) - qGreen(second)),
                                 std::abs(qBlue(first) - qBlue(second))});
        }
    }
    return greatest;
}

} // namespace

/// The dashed outline, which looks the same whether it comes from pictures or not.
class DashedOutlineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void looksLikeItsStroke_data();
    void looksLikeItsStroke();
    void dashesFitEverySize();
    void patternsAndTransformsAreStroked_data();
    void patternsAndTransformsAreStroked();
    void followsClipAndOpacity();
    void anyRectangle_data();
    void anyRectangle();
};

void DashedOutlineTest::looksLikeItsStroke_data()
{
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<QColor>("color");
    QTest::addColumn<qreal>("scale");
    const QColor solid(250, 240, 20);
    QTest::newRow("in one picture") << QRect(4, 2, 60, 20) << solid << 1.0;
    QTest::newRow("in four pictures") << QRect(4, 2, 201, 150) << solid << 1.0;
    QTest::newRow("thin") << QRect(4, 2, 240, 3) << solid << 1.0;
    QTest::newRow("at the edge") << QRect(0, 0, 260, 260) << solid << 1.0;
    QTest::newRow("translucent") << QRect(4, 2, 60, 20) << QColor(250, 240, 20, 90) << 1.0;
    QTest::newRow("translucent, large") << QRect(4, 2, 201, 150) << QColor(250, 240, 20, 90) << 1.0;
    QTest::newRow("scaled twice") << QRect(4, 2, 60, 20) << solid << 2.0;
    QTest::newRow("scaled twice, large") << QRect(4, 2, 203, 151) << solid << 2.0;
    QTest::newRow("scaled one and a half times") << QRect(4, 2, 61, 21) << solid << 1.5;
    QTest::newRow("scaled one and a half times, large") << QRect(4, 2, 201, 151) << solid << 1.5;
    QTest::newRow("between two pixels") << QRect(5, 3, 61, 21) << solid << 1.5;
}

void DashedOutlineTest::looksLikeItsStroke()
{
    QFETCH(QRect, rect);
    QFETCH(QColor, color);
    QFETCH(qreal, scale);
    const QImage expected =
        drawn(scale, [&](QPainter &painter) { strokeReference(rect, color, painter); });
    QVERIFY(expected != canvas(scale));
    // The second time there are pictures already.
    for (int i = 0; i < 2; ++i) {
        const QImage picture =
            drawn(scale, [&](QPainter &painter) { TARN::drawDashedOutline(rect, color, painter); });
        QVERIFY(greatestDifference(picture, expected) <= 1);
    }
}

void DashedOutlineTest::dashesFitEverySize()
{
    for (int width = 100; width < 108; ++width) {
        for (int height = 10; height < 18; ++height) {
            const QRect rect(3, 5, width, height);
            const auto draw = [&](QPainter &painter) {
                TARN::drawDashedOutline(rect, QColor(Qt::white), painter);
            };
            const auto stroke = [&](QPainter &painter) {
                strokeReference(rect, QColor(Qt::white), painter);
            };
            QVERIFY(greatestDifference(drawn(1, draw), drawn(1, stroke)) <= 1);
        }
    }
}

void DashedOutlineTest::patternsAndTransformsAreStroked_data()
{
    QTest::addColumn<QBrush>("brush");
    QTest::addColumn<QTransform>("transform");
    QTest::addColumn<int>("mode");
    const int over = QPainter::CompositionMode_SourceOver;
    const QBrush plain(Qt::white);
    QTest::newRow("pattern") << QBrush(Qt::white, Qt::Dense4Pattern) << QTransform() << over;
    QTest::newRow("turned") << plain << QTransform().translate(100, 0).rotate(30) << over;
    QTest::newRow("mirrored") << plain << QTransform().translate(200, 0).scale(-1, 1) << over;
    QTest::newRow("stretched") << plain << QTransform().scale(2, 1) << over;
    QTest::newRow("on half pixels") << plain << QTransform().translate(0.5, 0.5) << over;
    QTest::newRow("composed") << plain << QTransform() << int(QPainter::CompositionMode_Xor);
}

void DashedOutlineTest::patternsAndTransformsAreStroked()
{
    QFETCH(QBrush, brush);
    QFETCH(QTransform, transform);
    QFETCH(int, mode);
    const QRect rect(10, 20, 60, 30);
    const auto prepare = [&](QPainter &painter) {
        painter.setTransform(transform);
        painter.setCompositionMode(QPainter::CompositionMode(mode));
    };
    const QImage expected = drawn(1, [&](QPainter &painter) {
        prepare(painter);
        strokeReference(rect, brush, painter);
    });
    const QImage picture = drawn(1, [&](QPainter &painter) {
        prepare(painter);
        TARN::drawDashedOutline(rect, brush, painter);
    });
    QCOMPARE(picture, expected);
}

void DashedOutlineTest::followsClipAndOpacity()
{
    const QRect rect(10, 20, 60, 30);
    const auto prepare = [](QPainter &painter) {
        painter.setClipRect(20, 0, 20, 100);
        painter.setOpacity(0.5);
        painter.translate(3, 4);
    };
    const QImage expected = drawn(1, [&](QPainter &painter) {
        prepare(painter);
        strokeReference(rect, QColor(Qt::white), painter);
    });
    const QImage picture = drawn(1, [&](QPainter &painter) {
        prepare(painter);
        TARN::drawDashedOutline(rect, QColor(Qt::white), painter);
    });
    QVERIFY(picture != canvas(1));
    QVERIFY(greatestDifference(picture, expected) <= 1);
}

void DashedOutlineTest::anyRectangle_data()
{
    QTest::addColumn<QRect>("rect");
    constexpr int far = 1 << 24;
    QTest::newRow("null") << QRect();
    QTest::newRow("one pixel") << QRect(4, 2, 1, 1);
    QTest::newRow("negative") << QRect(50, 50, -10, -10);
    QTest::newRow("wide") << QRect(-far, 50, 2 * far, 10);
    QTest::newRow("far away") << QRect(far, far, 60, 20);
}

void DashedOutlineTest::anyRectangle()
{
    QFETCH(QRect, rect);
    const QImage expected =
        drawn(1, [&](QPainter &painter) { strokeReference(rect, QColor(Qt::white), painter); });
    const QImage picture = drawn(
        1, [&](QPainter &painter) { TARN::drawDashedOutline(rect, QColor(Qt::white), painter); });
    QCOMPARE(picture, expected);
}

QTEST_MAIN(DashedOutlineTest)
#include "DashedOutlineTest.moc"
