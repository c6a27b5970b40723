#include <style/BaseStyle.h>

#include <QtGui/QPainter>
#include <QtMath>
#include <QtTest/QtTest>

#include <support/Text.h>

using TARN::BaseStyle;

namespace {

QImage canvas()
{
    QImage picture(60, 60, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    return picture;
}

/// How much of a picture is painted, and where the middle of that is.
struct Spot
{
    qreal area = 0;
    QPointF center;
};

Spot spotOf(const QImage &picture)
{
    Spot spot;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const qreal coverage = qAlpha(picture.pixel(x, y)) / 255.0;
            spot.area += coverage;
            spot.center += coverage * QPointF(x + 0.5, y + 0.5);
        }
    }
    spot.center /= spot.area;
    return spot;
}

bool isNear(qreal actual, qreal expected, qreal tolerance)
{
    return qAbs(actual - expected) <= tolerance;
}

} // namespace

/// The tick and the dot that mark what is checked.
class MarkPaintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void checkMark_data();
    void checkMark();
    void radioMark_data();
    void radioMark();
    void painterIsLeftAsItWas();
};

void MarkPaintTest::checkMark_data()
{
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<QVector<QPointF>>("corners");
    QTest::newRow("at the origin")
        << QRect(0, 0, 14, 14) << QVector<QPointF>{{4, 7}, {7, 11}, {10.5, 4}};
    QTest::newRow("elsewhere") << QRect(5, 9, 14, 14)
                               << QVector<QPointF>{{9, 16}, {12, 20}, {15.5, 13}};
    QTest::newRow("of another size")
        << QRect(0, 0, 21, 31) << QVector<QPointF>{{4, 15.5}, {10.5, 28}, {17.5, 4}};
}

void MarkPaintTest::checkMark()
{
    QFETCH(QRect, rect);
    QFETCH(QVector<QPointF>, corners);
    const BaseStyle style;
    QImage picture = canvas();
    QPainter painter(&picture);
    style.drawCheckMark(&painter, rect, QColor(Qt::red));
    painter.end();

    QImage expected = canvas();
    painter.begin(&expected);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::red, 1.8, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    painter.drawPolyline(corners.constData(), corners.size());
    painter.end();
    QCOMPARE(picture, expected);
}

void MarkPaintTest::radioMark_data()
{
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<QPointF>("center");
    QTest::addColumn<qreal>("radius");
    QTest::newRow("odd") << QRect(0, 0, 13, 13) << QPointF(7, 7) << 13 / 3.5;
    QTest::newRow("even") << QRect(0, 0, 14, 14) << QPointF(7, 7) << 4.0;
    QTest::newRow("odd, elsewhere") << QRect(10, 20, 13, 13) << QPointF(17, 27) << 13 / 3.5;
    QTest::newRow("wide") << QRect(0, 0, 40, 14) << QPointF(20, 7) << 4.0;
    QTest::newRow("high, odd") << QRect(0, 0, 13, 30) << QPointF(7, 15.5) << 13 / 3.5;
}

void MarkPaintTest::radioMark()
{
    QFETCH(QRect, rect);
    QFETCH(QPointF, center);
    QFETCH(qreal, radius);
    const BaseStyle style;
    QImage picture = canvas();
    QPainter painter(&picture);
    style.drawRadioMark(&painter, rect, QColor(Qt::red));
    painter.end();
    const Spot spot = spotOf(picture);
    QVERIFY2(isNear(spot.center.x(), center.x(), 0.05),
             qPrintable(QString::number(spot.center.x())));
    QVERIFY2(isNear(spot.center.y(), center.y(), 0.05),
             qPrintable(QString::number(spot.center.y())));
    QVERIFY2(isNear(spot.area, M_PI * radius * radius, 1.5),
             qPrintable(QString::number(spot.area)));
    QCOMPARE(picture.pixelColor(center.toPoint()), QColor(Qt::red));
}

void MarkPaintTest::painterIsLeftAsItWas()
{
    const BaseStyle style;
    QImage picture = canvas();
    QPainter painter(&picture);
    painter.setPen(QPen(Qt::green, 3));
    painter.setBrush(Qt::blue);
    style.drawCheckMark(&painter, QRect(0, 0, 14, 14), QColor(Qt::red));
    style.drawRadioMark(&painter, QRect(0, 0, 14, 14), QColor(Qt::red));
    QCOMPARE(painter.pen(), QPen(Qt::green, 3));
    QCOMPARE(painter.brush(), QBrush(Qt::blue));
    QVERIFY(!painter.testRenderHint(QPainter::Antialiasing));
}

QTEST_MAIN(MarkPaintTest)
#include "MarkPaintTest.moc"
