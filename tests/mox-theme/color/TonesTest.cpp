#include "color/Tones.h"

#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtTest/QtTest>

using TARN::ThemeTool::lightened;
using TARN::ThemeTool::mixed;
using TARN::ThemeTool::Oklch;
using TARN::ThemeTool::saturated;
using TARN::ThemeTool::toOklch;

namespace {

QColor painted(const QColor &above, double opacity, const QColor &ground)
{
    QImage image(1, 1, QImage::Format_RGB32);
    image.fill(ground);
    QPainter painter(&image);
    painter.setOpacity(opacity);
    painter.fillRect(image.rect(), above);
    painter.end();
    return image.pixelColor(0, 0);
}

} // namespace

class TonesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void mixesAsThePainterDoes_data();
    void mixesAsThePainterDoes();
    void mixesTranslucentColorsAsThePainterDoes();
    void mixEndsAtEitherColor();
    void lighteningMovesByHundredths();
    void lighteningEndsAtWhiteAndBlack();
    void lighteningByNothingChangesNothing();
    void saturationScalesChromaAlone();
    void saturationByOneChangesNothing();
    void saturationByNothingMakesGrey();
};

void TonesTest::mixesAsThePainterDoes_data()
{
    QTest::addColumn<QColor>("above");
    QTest::addColumn<QColor>("ground");

    QTest::newRow("black on white") << QColor(Qt::black) << QColor(Qt::white);
    QTest::newRow("white on black") << QColor(Qt::white) << QColor(Qt::black);
    QTest::newRow("white on white") << QColor(Qt::white) << QColor(Qt::white);
    QTest::newRow("blue on dark") << QColor(61, 143, 209) << QColor(32, 40, 47);
    QTest::newRow("odd on odd") << QColor(1, 127, 253) << QColor(254, 129, 3);
}

void TonesTest::mixesAsThePainterDoes()
{
    QFETCH(const QColor, above);
    QFETCH(const QColor, ground);
    for (int step = 0; step <= 1000; ++step) {
        QCOMPARE(mixed(above, step / 1000.0, ground), painted(above, step / 1000.0, ground));
    }
}

void TonesTest::mixesTranslucentColorsAsThePainterDoes()
{
    for (int alpha = 0; alpha <= 255; ++alpha) {
        const QColor above(200, 90, 17, alpha);
        for (const double opacity : {0.25, 0.5, 1.0}) {
            QCOMPARE(mixed(above, opacity, QColor(32, 40, 147)),
                     painted(above, opacity, QColor(32, 40, 147)));
        }
    }
}

void TonesTest::mixEndsAtEitherColor()
{
    const QColor above(61, 143, 209);
    const QColor ground(32, 40, 47);
    QCOMPARE(mixed(above, 1, ground), above);
    QCOMPARE(mixed(above, 7, ground), above);
    QCOMPARE(mixed(above, 0, ground), ground);
    QCOMPARE(mixed(above, -1, ground), ground);
    QCOMPARE(mixed(QColor(), 1, ground), QColor(Qt::black));
}

void TonesTest::lighteningMovesByHundredths()
{
    const QColor color(61, 143, 209);
    const Oklch before = toOklch(color);
    for (const double steps : {-20.0, -5.0, 3.0, 10.0}) {
        const Oklch after = toOklch(lightened(color, steps));
        QVERIFY(qAbs(after.lightness - before.lightness - steps / 100) < 0.003);
        QVERIFY(qAbs(after.hue - before.hue) < 2);
    }
}

void TonesTest::lighteningEndsAtWhiteAndBlack()
{
    QCOMPARE(lightened(QColor(61, 143, 209), 100), QColor(Qt::white));
    QCOMPARE(lightened(QColor(61, 143, 209), -100), QColor(Qt::black));
    QCOMPARE(lightened(Qt::white, 1), QColor(Qt::white));
    QCOMPARE(lightened(Qt::black, -1), QColor(Qt::black));
}

void TonesTest::lighteningByNothingChangesNothing()
{
    QCOMPARE(lightened(QColor(61, 143, 209), 0), QColor(61, 143, 209));
}

void TonesTest::saturationScalesChromaAlone()
{
    const QColor color(61, 143, 209);
    const Oklch before = toOklch(color);
    for (const double factor : {0.4, 0.8, 1.05}) {
        const Oklch after = toOklch(saturated(color, factor));
        QVERIFY(qAbs(after.chroma - before.chroma * factor) < 0.003);
        QVERIFY(qAbs(after.lightness - before.lightness) < 0.003);
        QVERIFY(qAbs(after.hue - before.hue) < 3);
    }
}

void TonesTest::saturationByOneChangesNothing()
{
    QCOMPARE(saturated(QColor(61, 143, 209), 1), QColor(61, 143, 209));
}

void TonesTest::saturationByNothingMakesGrey()
{
    for (const double factor : {0.0, -1.0}) {
        const QColor grey = saturated(QColor(61, 143, 209), factor);
        QCOMPARE(grey.red(), grey.green());
        QCOMPARE(grey.green(), grey.blue());
    }
    QCOMPARE(saturated(QColor(90, 90, 90), 3), QColor(90, 90, 90));
}

QTEST_MAIN(TonesTest)
#include "TonesTest.moc"
