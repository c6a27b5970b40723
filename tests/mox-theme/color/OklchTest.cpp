#include "color/Oklch.h"

#include <QtTest/QtTest>

#include <cmath>
#include <limits>

using TARN::ThemeTool::colorDistance;
using TARN::ThemeTool::Oklch;
using TARN::ThemeTool::toColor;
using TARN::ThemeTool::toOklch;

namespace {

double hueDifference(double first, double second)
{
    return qAbs(std::remainder(first - second, 360));
}

} // namespace

class OklchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void publishedValues_data();
    void publishedValues();
    void greysHaveNoChroma();
    void everyGreyComesBackUnchanged();
    void everyScreenColorComesBackUnchanged();
    void leavesAlphaOut();
    void invalidColorIsBlack();
    void hueIsCountedFromZeroTo360();
    void strongChromaKeepsLightnessAndHue_data();
    void strongChromaKeepsLightnessAndHue();
    void reducesNoMoreChromaThanItHasTo();
    void lightnessEndsAtBlackAndWhite();
    void hueGoesRound();
    void whatIsNoNumberIsLeftOut();
    void distanceOfEqualColorsIsZero();
    void distanceFromBlackToWhiteIsOne();
    void distanceCountsHueToo();
};

void OklchTest::publishedValues_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<double>("lightness");
    QTest::addColumn<double>("chroma");
    QTest::addColumn<double>("hue");

    QTest::newRow("red") << QColor(Qt::red) << 0.62796 << 0.25768 << 29.234;
    QTest::newRow("green") << QColor(Qt::green) << 0.86644 << 0.29483 << 142.495;
    QTest::newRow("blue") << QColor(Qt::blue) << 0.45201 << 0.31321 << 264.052;
    QTest::newRow("yellow") << QColor(Qt::yellow) << 0.96798 << 0.21101 << 109.769;
    QTest::newRow("cyan") << QColor(Qt::cyan) << 0.90540 << 0.15455 << 194.769;
    QTest::newRow("magenta") << QColor(Qt::magenta) << 0.70167 << 0.32249 << 328.363;
    QTest::newRow("white") << QColor(Qt::white) << 1.0 << 0.0 << 0.0;
    QTest::newRow("black") << QColor(Qt::black) << 0.0 << 0.0 << 0.0;
}

void OklchTest::publishedValues()
{
    QFETCH(const QColor, color);
    QFETCH(const double, lightness);
    QFETCH(const double, chroma);
    QFETCH(const double, hue);

    const Oklch oklch = toOklch(color);
    QVERIFY(qAbs(oklch.lightness - lightness) < 1e-5);
    QVERIFY(qAbs(oklch.chroma - chroma) < 1e-5);
    QVERIFY(hueDifference(oklch.hue, hue) < 1e-2);
}

void OklchTest::greysHaveNoChroma()
{
    for (int value = 0; value <= 255; ++value) {
        const Oklch grey = toOklch(QColor(value, value, value));
        QCOMPARE(grey.chroma, 0.0);
        QCOMPARE(grey.hue, 0.0);
    }
    QVERIFY(toOklch(QColor(255, 255, 254)).chroma > 0);
    QVERIFY(toOklch(QColor(0, 0, 1)).chroma > 0);
}

void OklchTest::everyGreyComesBackUnchanged()
{
    for (int value = 0; value <= 255; ++value) {
        const QColor grey(value, value, value);
        QCOMPARE(toColor(toOklch(grey)), grey);
    }
}

void OklchTest::everyScreenColorComesBackUnchanged()
{
    for (int red = 0; red <= 255; red += 5) {
        for (int green = 0; green <= 255; green += 5) {
            for (int blue = 0; blue <= 255; blue += 5) {
                const QColor color(red, green, blue);
                QCOMPARE(toColor(toOklch(color)), color);
            }
        }
    }
}

void OklchTest::leavesAlphaOut()
{
    QCOMPARE(toColor(toOklch(QColor(61, 143, 209, 40))), QColor(61, 143, 209));
}

void OklchTest::invalidColorIsBlack()
{
    QCOMPARE(toColor(toOklch(QColor())), QColor(Qt::black));
}

void OklchTest::hueIsCountedFromZeroTo360()
{
    for (int degrees = 0; degrees < 360; ++degrees) {
        const double hue = toOklch(QColor::fromHsv(degrees, 200, 220)).hue;
        QVERIFY(hue >= 0 && hue < 360);
    }
}

void OklchTest::strongChromaKeepsLightnessAndHue_data()
{
    QTest::addColumn<double>("lightness");
    for (const int percent : {30, 45, 60, 75, 90}) {
        QTest::addRow("%d %%", percent) << percent / 100.0;
    }
}

void OklchTest::strongChromaKeepsLightnessAndHue()
{
    QFETCH(const double, lightness);
    for (int hue = 0; hue < 360; ++hue) {
        // A screen shows this chroma in no hue.
        const Oklch shown = toOklch(toColor({lightness, 0.38, double(hue)}));
        QVERIFY(shown.chroma > 0.03);
        QVERIFY(qAbs(shown.lightness - lightness) < 0.004);
        // What half a step of 8 bits turns a colour by grows as its chroma falls.
        QVERIFY(hueDifference(shown.hue, hue) * shown.chroma < 0.25);
    }
}

void OklchTest::reducesNoMoreChromaThanItHasTo()
{
    for (int hue = 0; hue < 360; ++hue) {
        const QColor color = toColor({0.6, 0.38, double(hue)});
        const int channels[] = {color.red(), color.green(), color.blue()};
        const auto [least, most] = std::minmax_element(std::begin(channels), std::end(channels));
        QVERIFY2(*least == 0 || *most == 255, qPrintable(color.name()));
    }
}

void OklchTest::lightnessEndsAtBlackAndWhite()
{
    for (const double chroma : {0.0, 0.1, 0.38, 5.0}) {
        for (int hue = 0; hue < 360; hue += 10) {
            for (const double beyond : {0.0, 0.5, 100.0}) {
                QCOMPARE(toColor({-beyond, chroma, double(hue)}), QColor(Qt::black));
                QCOMPARE(toColor({1 + beyond, chroma, double(hue)}), QColor(Qt::white));
            }
        }
    }
}

void OklchTest::hueGoesRound()
{
    const QColor color = toColor({0.6, 0.1, 250});
    QCOMPARE(toColor({0.6, 0.1, 250 + 360}), color);
    QCOMPARE(toColor({0.6, 0.1, 250 - 720}), color);
}

void OklchTest::whatIsNoNumberIsLeftOut()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    const QColor grey = toColor({0.6, 0, 0});

    QCOMPARE(toColor({nan, 0.1, 0}), QColor(Qt::black));
    QCOMPARE(toColor({0.6, nan, 250}), grey);
    QCOMPARE(toColor({0.6, -0.1, 250}), grey);
    QCOMPARE(toColor({0.6, infinity, 250}), toColor({0.6, 0.4, 250}));
    QCOMPARE(toColor({0.6, 0.1, nan}), toColor({0.6, 0.1, 0}));
    QCOMPARE(toColor({0.6, 0.1, infinity}), toColor({0.6, 0.1, 0}));
}

void OklchTest::distanceOfEqualColorsIsZero()
{
    QCOMPARE(colorDistance(QColor(61, 143, 209), QColor(61, 143, 209)), 0.0);
    QVERIFY(colorDistance(QColor(61, 143, 209), QColor(61, 143, 210)) > 0);
}

void OklchTest::distanceFromBlackToWhiteIsOne()
{
    QVERIFY(qAbs(colorDistance(Qt::black, Qt::white) - 1) < 1e-6);
    QVERIFY(qAbs(colorDistance(Qt::white, Qt::black) - 1) < 1e-6);
}

void OklchTest::distanceCountsHueToo()
{
    // Two strong colours of one lightness lie as far apart as their hues say.
    const QColor first = toColor({0.7, 0.1, 20});
    const QColor opposite = toColor({0.7, 0.1, 200});
    QVERIFY(qAbs(colorDistance(first, opposite) - 0.2) < 0.004);
}

QTEST_MAIN(OklchTest)
#include "OklchTest.moc"
