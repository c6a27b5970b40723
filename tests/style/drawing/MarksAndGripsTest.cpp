#include <style/BaseStyle.h>

#include <QtGui/QPainter>
#include <QtMath>
#include <QtTest/QtTest>

#include <limits>
#include <support/painting/CallRecorder.h>
#include <support/painting/Pixels.h>
#include <support/themes/PaintTheme.h>

using TARN::BaseStyle;

namespace {

constexpr QSize size(60, 40);

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

/// The ticks and dots of what is checked, and the dots by which things are dragged.
class MarksAndGripsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void grips_data();
    void grips();
    void verticalGripsIgnoreDarkSize();
    void gripsEnd_data();
    void gripsEnd();
    void checkMark_data();
    void checkMark();
    void radioMark_data();
    void radioMark();
    void painterIsLeftAsItWas();

private:
    QImage gripPicture(Qt::Orientation orientation, int from, int to, int across, int step,
                       int lightSize, int darkSize)
    {
        QImage picture = plainPicture(size);
        QPainter painter(&picture);
        m_recorder.style().drawGrips(painter, orientation, from, to, across, step, lightSize,
                                     darkSize);
        return picture;
    }

    PaintTheme m_theme;
    CallRecorder m_recorder;
};

void MarksAndGripsTest::grips_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<int>("lightSize");
    QTest::addColumn<int>("darkSize");
    QTest::newRow("horizontal") << Qt::Horizontal << 2 << 1;
    QTest::newRow("horizontal, large") << Qt::Horizontal << 4 << 3;
    QTest::newRow("vertical") << Qt::Vertical << 2 << 1;
}

void MarksAndGripsTest::grips()
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(int, lightSize);
    QFETCH(int, darkSize);
    const QImage picture = gripPicture(orientation, 5, 20, 10, 6, lightSize, darkSize);
    QImage expected = plainPicture(size);
    QPainter painter(&expected);
    // Before the end, which is none of the positions: 23 is the next one.
    for (const int along : {5, 11, 17}) {
        const QPoint corner = orientation == Qt::Horizontal ? QPoint(along, 10) : QPoint(10, along);
        painter.fillRect(QRect(corner, QSize(lightSize, lightSize)), QColor(255, 255, 255, 90));
        painter.fillRect(QRect(corner, QSize(darkSize, darkSize)), QColor(0, 0, 0, 60));
    }
    painter.end();
    QCOMPARE(picture, expected);
}

void MarksAndGripsTest::verticalGripsIgnoreDarkSize()
{
    QCOMPARE(gripPicture(Qt::Vertical, 0, 30, 10, 3, 2, 1),
             gripPicture(Qt::Vertical, 0, 30, 10, 3, 2, 5));
    QVERIFY(gripPicture(Qt::Horizontal, 0, 30, 10, 6, 5, 1) !=
            gripPicture(Qt::Horizontal, 0, 30, 10, 6, 5, 4));
}

void MarksAndGripsTest::gripsEnd_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<int>("step");
    QTest::addColumn<QRect>("expected");
    const int most = std::numeric_limits<int>::max();
    const int least = std::numeric_limits<int>::min();
    const QRect one(5, 10, 2, 2);
    QTest::newRow("nothing between the ends") << 5 << 5 << 3 << QRect();
    QTest::newRow("ends the wrong way round") << 5 << 0 << 3 << QRect();
    QTest::newRow("one") << 5 << 6 << 3 << one;
    QTest::newRow("without a step") << 5 << 50 << 0 << one;
    QTest::newRow("with a step back") << 5 << 50 << -3 << one;
    QTest::newRow("without a step, backwards") << 5 << 0 << 0 << QRect();
    QTest::newRow("endless") << 5 << most << 60 << one;
    QTest::newRow("endless step") << 5 << most << most << one;
    QTest::newRow("from afar") << least << most << most << QRect(0, 10, 1, 2);
    QTest::newRow("from afar without a step") << least << most << 0 << QRect();
    QTest::newRow("from afar, endless") << least << most << 3 << QRect();
    QTest::newRow("from afar, just within reach") << -(1 << 24) - 5 << 10 << (1 << 24) + 10 << one;
    QTest::newRow("back from afar") << most << least << -1 << QRect();
}

void MarksAndGripsTest::gripsEnd()
{
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(int, step);
    QFETCH(QRect, expected);
    QCOMPARE(paintedRect(gripPicture(Qt::Horizontal, from, to, 10, step, 2, 1)), expected);
}

void MarksAndGripsTest::checkMark_data()
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

void MarksAndGripsTest::checkMark()
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

void MarksAndGripsTest::radioMark_data()
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

void MarksAndGripsTest::radioMark()
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

void MarksAndGripsTest::painterIsLeftAsItWas()
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

QTEST_MAIN(MarksAndGripsTest)
#include "MarksAndGripsTest.moc"
