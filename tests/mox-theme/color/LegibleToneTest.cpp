#include <common_utils/Contrast.h>

#include <QtCore/QRandomGenerator>
#include <QtTest/QtTest>

#include <cmath>
#include <limits>
#include <mox-theme/support/ToneDemands.h>
#include <support/ProcessorTimer.h>

using TARN::Helpers::contrastRatio;
using TARN::Helpers::relativeLuminance;
using TARN::ThemeTool::ContrastDemand;
using TARN::ThemeTool::legibleTone;
using TARN::ThemeTool::meets;
using TARN::ThemeTool::Oklch;
using TARN::ThemeTool::ToneSide;
using TARN::ThemeTool::toOklch;

Q_DECLARE_METATYPE(ContrastDemand)

namespace {

const QColor darkSurface(0x20, 0x28, 0x2F);
const QColor nearBlack(0x12, 0x12, 0x12);

double lightnessDistance(const QColor &first, const QColor &second)
{
    return qAbs(toOklch(first).lightness - toOklch(second).lightness);
}

} // namespace

class LegibleToneTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void legibleColorIsReturnedUnchanged();
    void noDemandLeavesTheColor();
    void meetsDemandsThatAGreyMeets();
    void isTheNearestTone();
    void takesTheNearerSide();
    void takesTheSideAskedFor();
    void takesTheOtherSideWhenItMust();
    void staysOnTheSideWhereverAGreyMeetsTheDemands();
    void findsTheMiddleBetweenTwoGrounds();
    void hueStays();
    void gapOfOneGreyIsFound();
    void limitItselfIsLegible();
    void alphaAndPrecisionAreLeftOut();
    void invalidColorsAreBlack();
    void ratioThatIsNoNumberIsNeverMet();
    void costsAFractionOfTryingEveryTone_data();
    void costsAFractionOfTryingEveryTone();
};

void LegibleToneTest::legibleColorIsReturnedUnchanged()
{
    QRandomGenerator random(1);
    int legible = 0;
    for (int i = 0; i < 4000; ++i) {
        const QColor wanted = randomColor(random);
        const Demands demands = randomDemands(random);
        if (isMetByColor(wanted, demands)) {
            ++legible;
            for (const auto side : {ToneSide::Nearest, ToneSide::Lighter, ToneSide::Darker}) {
                QCOMPARE(legibleTone(wanted, demands, side), wanted);
            }
        }
    }
    QVERIFY(legible > 500);
}

void LegibleToneTest::noDemandLeavesTheColor()
{
    QCOMPARE(legibleTone(QColor(61, 143, 209), {}), QColor(61, 143, 209));
    QCOMPARE(legibleTone(darkSurface, {{darkSurface, 1}}), darkSurface);
}

void LegibleToneTest::meetsDemandsThatAGreyMeets()
{
    QRandomGenerator random(2);
    int possible = 0;
    for (int i = 0; i < 6000; ++i) {
        const QColor wanted = randomColor(random);
        const Demands demands = randomDemands(random);
        if (isMetBySomeGrey(demands)) {
            ++possible;
            for (const auto side : {ToneSide::Nearest, ToneSide::Lighter, ToneSide::Darker}) {
                const QColor tone = legibleTone(wanted, demands, side);
                QVERIFY2(isMetByColor(tone, demands), described(wanted, demands));
                QVERIFY(meets(tone, demands));
            }
        }
    }
    QVERIFY(possible > 3000);
}

void LegibleToneTest::isTheNearestTone()
{
    QRandomGenerator random(3);
    for (int i = 0; i < 300; ++i) {
        const QColor wanted = randomColor(random);
        const Demands demands = randomDemands(random);
        double nearest = std::numeric_limits<double>::infinity();
        for (const QColor &tone : tonesOf(toOklch(wanted))) {
            if (isMetByColor(tone, demands)) {
                nearest = qMin(nearest, lightnessDistance(tone, wanted));
            }
        }
        if (std::isfinite(nearest)) {
            const QColor tone = legibleTone(wanted, demands);
            QVERIFY2(lightnessDistance(tone, wanted) < nearest + 0.004, described(wanted, demands));
        }
    }
}

void LegibleToneTest::takesTheNearerSide()
{
    // On this grey both sides have room for a contrast of 3.
    const Demands demands = {{QColor(0x76, 0x76, 0x76), 3}};
    const QColor lighter = legibleTone(QColor(0x90, 0x90, 0x90), demands);
    const QColor darker = legibleTone(QColor(0x60, 0x60, 0x60), demands);
    QVERIFY(lighter.red() > 0x90);
    QVERIFY(darker.red() < 0x60);
}

void LegibleToneTest::takesTheSideAskedFor()
{
    const Demands demands = {{QColor(0x76, 0x76, 0x76), 3}};
    for (const int value : {0x60, 0x76, 0x90}) {
        const QColor wanted(value, value, value);
        const QColor lighter = legibleTone(wanted, demands, ToneSide::Lighter);
        const QColor darker = legibleTone(wanted, demands, ToneSide::Darker);
        QVERIFY(lighter.red() > value);
        QVERIFY(darker.red() < value);
        QVERIFY(meets(lighter, demands));
        QVERIFY(meets(darker, demands));
    }
}

void LegibleToneTest::takesTheOtherSideWhenItMust()
{
    const QColor nearWhite(0xF4, 0xF4, 0xF4);
    const QColor onWhite = legibleTone(nearWhite, {{Qt::white, 4.5}}, ToneSide::Lighter);
    QVERIFY(contrastRatio(onWhite, Qt::white) >= 4.5);

    const QColor onBlack = legibleTone(nearBlack, {{Qt::black, 4.5}}, ToneSide::Darker);
    QVERIFY(contrastRatio(onBlack, Qt::black) >= 4.5);
}

void LegibleToneTest::staysOnTheSideWhereverAGreyMeetsTheDemands()
{
    static const QVector<QColor> all = greys();
    QRandomGenerator random(4);
    int possible = 0;
    for (int i = 0; i < 3000; ++i) {
        const QColor wanted = randomColor(random);
        const Demands demands = randomDemands(random);
        const double luminance = relativeLuminance(wanted);
        const bool isPossible = std::any_of(all.cbegin(), all.cend(), [&](const QColor &grey) {
            return relativeLuminance(grey) >= luminance && isMetByColor(grey, demands);
        });
        if (isPossible) {
            ++possible;
            const QColor tone = legibleTone(wanted, demands, ToneSide::Lighter);
            QVERIFY2(relativeLuminance(tone) >= luminance, described(wanted, demands));
        }
    }
    QVERIFY(possible > 1000);
}

void LegibleToneTest::findsTheMiddleBetweenTwoGrounds()
{
    // A filled button: told from the surface, and its dark text is legible on it.
    const Demands demands = {{darkSurface, 3}, {Qt::white, 3}};
    for (const QColor &wanted : {QColor(20, 30, 90), QColor(250, 220, 225), QColor(0, 60, 0)}) {
        const QColor tone = legibleTone(wanted, demands);
        QVERIFY(contrastRatio(tone, darkSurface) >= 3);
        QVERIFY(contrastRatio(tone, Qt::white) >= 3);
    }
    const Demands bothDark = {{darkSurface, 4.5}, {nearBlack, 4.5}};
    const QColor tone = legibleTone(QColor(20, 30, 90), bothDark);
    QVERIFY(contrastRatio(tone, darkSurface) >= 4.5);
    QVERIFY(contrastRatio(tone, nearBlack) >= 4.5);
}

void LegibleToneTest::hueStays()
{
    QRandomGenerator random(5);
    int compared = 0;
    for (int i = 0; i < 2000; ++i) {
        const QColor wanted = randomColor(random);
        const Oklch before = toOklch(wanted);
        const Oklch after = toOklch(legibleTone(wanted, {{randomColor(random), 4.5}}));
        // Rounding to 8 bits turns weak colours too far to compare.
        if (after.lightness > 0.2 && after.chroma > 0.03) {
            ++compared;
            QVERIFY(qAbs(std::remainder(before.hue - after.hue, 360)) < 0.25 / after.chroma);
            QVERIFY(after.chroma < before.chroma + 0.006);
        }
    }
    QVERIFY(compared > 1000);
}

void LegibleToneTest::gapOfOneGreyIsFound()
{
    // What lies between black and white as this grey does, no other grey and hardly a tint does.
    const QColor grey(0x75, 0x75, 0x75);
    const Demands demands = {{Qt::black, contrastRatio(grey, Qt::black)},
                             {Qt::white, contrastRatio(grey, Qt::white)}};
    for (const QColor &wanted : {QColor(Qt::red), QColor(Qt::yellow), QColor(0, 0, 40)}) {
        for (const auto side : {ToneSide::Nearest, ToneSide::Lighter, ToneSide::Darker}) {
            QVERIFY(isMetByColor(legibleTone(wanted, demands, side), demands));
        }
    }
}

void LegibleToneTest::limitItselfIsLegible()
{
    QCOMPARE(legibleTone(QColor(80, 90, 200), {{Qt::black, 21}}), QColor(Qt::white));
    QCOMPARE(legibleTone(QColor(80, 90, 200), {{Qt::white, 21}}), QColor(Qt::black));
    // The lightest grey that is legible on white.
    QCOMPARE(legibleTone(QColor(0xC0, 0xC0, 0xC0), {{Qt::white, 4.5}}), QColor(0x76, 0x76, 0x76));
}

void LegibleToneTest::alphaAndPrecisionAreLeftOut()
{
    QCOMPARE(legibleTone(QColor(61, 143, 209, 40), {}), QColor(61, 143, 209));
    QCOMPARE(legibleTone(QColor::fromRgba64(0x3D5D, 0x8F6F, 0xD1F1), {}), QColor(0x3D, 0x8F, 0xD1));
    QCOMPARE(legibleTone(QColor(Qt::red).toHsl(), {}).spec(), QColor::Rgb);
}

void LegibleToneTest::invalidColorsAreBlack()
{
    QCOMPARE(legibleTone(QColor(), {}), QColor(Qt::black));
    QCOMPARE(legibleTone(QColor(), {{QColor(), 21}}), QColor(Qt::white));
    QVERIFY(meets(QColor(), {{Qt::white, 21}}));
    QVERIFY(!meets(QColor(), {{QColor(), 1.1}}));
}

void LegibleToneTest::ratioThatIsNoNumberIsNeverMet()
{
    for (const double ratio :
         {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
        QVERIFY(!meets(Qt::white, {{Qt::black, ratio}}));
        QVERIFY(legibleTone(QColor(61, 143, 209), {{Qt::black, ratio}}).isValid());
    }
    QCOMPARE(legibleTone(QColor(61, 143, 209), {{Qt::black, 0}, {Qt::white, -3}}),
             QColor(61, 143, 209));
}

void LegibleToneTest::costsAFractionOfTryingEveryTone_data()
{
    QTest::addColumn<Demands>("demands");

    QTest::newRow("possible") << Demands{{darkSurface, 4.5}, {nearBlack, 4.5}};
    QTest::newRow("impossible") << Demands{{Qt::black, 7}, {Qt::white, 7}};
}

void LegibleToneTest::costsAFractionOfTryingEveryTone()
{
    QFETCH(const Demands, demands);

    // The shortest of several runs is the one that nothing else on the machine has disturbed.
    const auto shortestTime = [](const auto &work) {
        qint64 shortest = std::numeric_limits<qint64>::max();
        for (int run = 0; run < 9; ++run) {
            const ProcessorTimer timer;
            for (int value = 0; value < 64; ++value) {
                work(QColor(value / 2, value / 4, value));
            }
            shortest = qMin(shortest, timer.nsecsElapsed());
        }
        return shortest;
    };
    const qint64 all = shortestTime([&](const QColor &wanted) {
        const QVector<QColor> tones = tonesOf(toOklch(wanted));
        std::count_if(tones.cbegin(), tones.cend(),
                      [&](const QColor &tone) { return isMetByColor(tone, demands); });
    });
    const qint64 one = shortestTime([&](const QColor &wanted) { legibleTone(wanted, demands); });
    qInfo("%lld ns each, 1 : %lld", one / 64, all / one);
    QVERIFY(one * 10 < all);
}

QTEST_MAIN(LegibleToneTest)
#include "LegibleToneTest.moc"
