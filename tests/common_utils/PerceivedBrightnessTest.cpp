#include <common_utils/Helpers.h>

#include <QtTest/QtTest>

using TARN::Helpers::getPerceivedBrightness;

class PerceivedBrightnessTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void greysAreTheirOwnBrightness();
    void neverFallsWhenAChannelRises();
    void greenIsBrightestAndBlueDarkest();
    void ignoresAlpha();
    void dependsOnTheColorAloneNotOnItsModel();
    void invalidColorIsBlack();
};

void PerceivedBrightnessTest::greysAreTheirOwnBrightness()
{
    for (int value = 0; value <= 255; ++value) {
        QCOMPARE(getPerceivedBrightness(QColor(value, value, value)), value);
    }
}

void PerceivedBrightnessTest::neverFallsWhenAChannelRises()
{
    constexpr int step = 15;
    for (int red = 0; red <= 255; red += step) {
        for (int green = 0; green <= 255; green += step) {
            for (int blue = 0; blue <= 255; blue += step) {
                const int brightness = getPerceivedBrightness(QColor(red, green, blue));
                QVERIFY(brightness >= 0 && brightness <= 255);
                const QColor brighter[] = {QColor(qMin(255, red + 1), green, blue),
                                           QColor(red, qMin(255, green + 1), blue),
                                           QColor(red, green, qMin(255, blue + 1))};
                for (const QColor &color : brighter) {
                    QVERIFY(getPerceivedBrightness(color) >= brightness);
                }
            }
        }
    }
}

void PerceivedBrightnessTest::greenIsBrightestAndBlueDarkest()
{
    const int red = getPerceivedBrightness(Qt::red);
    QVERIFY(getPerceivedBrightness(Qt::green) > red);
    QVERIFY(red > getPerceivedBrightness(Qt::blue));
    QVERIFY(getPerceivedBrightness(Qt::yellow) > 130);
    QVERIFY(getPerceivedBrightness(Qt::blue) <= 130);
}

void PerceivedBrightnessTest::ignoresAlpha()
{
    const int opaque = getPerceivedBrightness(QColor(30, 140, 220));
    for (const int alpha : {0, 1, 128, 254}) {
        QCOMPARE(getPerceivedBrightness(QColor(30, 140, 220, alpha)), opaque);
    }
}

void PerceivedBrightnessTest::dependsOnTheColorAloneNotOnItsModel()
{
    const QColor color(30, 140, 220);
    const int brightness = getPerceivedBrightness(color);
    for (const QColor::Spec spec : {QColor::Hsv, QColor::Hsl, QColor::Cmyk, QColor::ExtendedRgb}) {
        QCOMPARE(getPerceivedBrightness(color.convertTo(spec)), brightness);
    }
}

void PerceivedBrightnessTest::invalidColorIsBlack()
{
    QCOMPARE(getPerceivedBrightness(QColor()), 0);
}

QTEST_MAIN(PerceivedBrightnessTest)
#include "PerceivedBrightnessTest.moc"
