#include <common_utils/Contrast.h>

#include <QtCore/QRandomGenerator>
#include <QtTest/QtTest>

#include <mox-theme/support/ToneDemands.h>

using TARN::Helpers::contrastRatio;
using TARN::ThemeTool::ContrastDemand;
using TARN::ThemeTool::legibleTone;
using TARN::ThemeTool::Oklch;
using TARN::ThemeTool::toOklch;

namespace {

double smallestShare(const QColor &color, const Demands &demands)
{
    double share = 1;
    for (const ContrastDemand &demand : demands) {
        share = qMin(share, contrastRatio(color, demand.ground) / demand.ratio);
    }
    return share;
}

} // namespace

/// The tones that are found where none is legible on every ground.
class ToneCompromiseTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void impossibleDemandsGetTheBestCompromise();
    void impossibleDemandsOfManyColors();
    void compromiseKeepsTheHue();
};

void ToneCompromiseTest::impossibleDemandsGetTheBestCompromise()
{
    // No colour has a contrast of 7 on a middle grey: one end is all there is.
    QCOMPARE(legibleTone(QColor(61, 143, 209), {{QColor(0x70, 0x70, 0x70), 7}}), QColor(Qt::white));
    QCOMPARE(legibleTone(QColor(61, 143, 209), {{QColor(0x80, 0x80, 0x80), 7}}), QColor(Qt::black));

    // Between black and white there is 4.58 for both.
    const Demands demands = {{Qt::black, 7}, {Qt::white, 7}};
    const QColor tone = legibleTone(QColor(61, 143, 209), demands);
    QVERIFY(contrastRatio(tone, Qt::black) > 4.52);
    QVERIFY(contrastRatio(tone, Qt::white) > 4.52);
}

void ToneCompromiseTest::impossibleDemandsOfManyColors()
{
    QRandomGenerator random(6);
    int impossible = 0;
    while (impossible < 200) {
        const QColor wanted = randomColor(random);
        const Demands demands = randomDemands(random);
        if (isMetBySomeGrey(demands)) {
            continue;
        }
        ++impossible;
        double best = 0;
        for (const QColor &tone : tonesOf(toOklch(wanted)) + greys()) {
            best = qMax(best, smallestShare(tone, demands));
        }
        // Two steps of 8 bits may tie; they differ by less than a hundredth.
        QVERIFY2(smallestShare(legibleTone(wanted, demands), demands) > best - 0.01,
                 described(wanted, demands));
    }
}

void ToneCompromiseTest::compromiseKeepsTheHue()
{
    const QColor wanted(61, 143, 209);
    const Oklch tone = toOklch(legibleTone(wanted, {{Qt::black, 7}, {Qt::white, 7}}));
    QVERIFY(qAbs(tone.hue - toOklch(wanted).hue) < 3);
    QVERIFY(tone.chroma > 0.1);
}

QTEST_MAIN(ToneCompromiseTest)
#include "ToneCompromiseTest.moc"
