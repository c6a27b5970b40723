#include <common_utils/Contrast.h>

#include <QtTest/QtTest>

using TARN::Helpers::contrastRatio;
using TARN::Helpers::relativeLuminance;

class ContrastTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void luminanceRunsFromBlackToWhite();
    void greenIsSeenLightestAndBlueDarkest();
    void blackOnWhiteIsTheStrongestContrast();
    void knownPairs_data();
    void knownPairs();
};

void ContrastTest::luminanceRunsFromBlackToWhite()
{
    QCOMPARE(relativeLuminance(Qt::black), 0.0);
    QCOMPARE(relativeLuminance(Qt::white), 1.0);
    for (int value = 1; value <= 255; ++value) {
        QVERIFY(relativeLuminance(QColor(value, value, value)) >
                relativeLuminance(QColor(value - 1, value - 1, value - 1)));
    }
}

void ContrastTest::greenIsSeenLightestAndBlueDarkest()
{
    QCOMPARE(relativeLuminance(Qt::green), 0.7152);
    QCOMPARE(relativeLuminance(Qt::red), 0.2126);
    QCOMPARE(relativeLuminance(Qt::blue), 0.0722);
}

void ContrastTest::blackOnWhiteIsTheStrongestContrast()
{
    QCOMPARE(contrastRatio(Qt::black, Qt::white), 21.0);
    QCOMPARE(contrastRatio(Qt::white, Qt::black), 21.0);
    QCOMPARE(contrastRatio(Qt::white, Qt::white), 1.0);
}

void ContrastTest::knownPairs_data()
{
    QTest::addColumn<QColor>("text");
    QTest::addColumn<bool>("isLegible");

    // The two neighbouring greys between which the limit of 4.5:1 on white lies.
    QTest::newRow("just legible") << QColor(0x76, 0x76, 0x76) << true;
    QTest::newRow("just not legible") << QColor(0x77, 0x77, 0x77) << false;
}

void ContrastTest::knownPairs()
{
    QFETCH(const QColor, text);
    QFETCH(const bool, isLegible);
    QCOMPARE(contrastRatio(text, Qt::white) >= 4.5, isLegible);
}

QTEST_MAIN(ContrastTest)
#include "ContrastTest.moc"
