#include <QtTest/QtTest>

#include <compare/VisibleDistance.h>

using namespace TARN::ThemeTool;

namespace {

QBrush gradient(const QPointF &end, const QColor &from, const QColor &to)
{
    QLinearGradient gradient(QPointF(0, 0), end);
    gradient.setCoordinateMode(QGradient::ObjectBoundingMode);
    gradient.setStops({{0, from}, {1, to}});
    return QBrush(gradient);
}

} // namespace

/// How visible the difference between two colours is.
class VisibleDistanceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wordsHaveThresholds();
    void equalColoursDoNotDiffer();
    void blackAndWhiteDifferMost();
    void translucencyIsSeen();
    void whatIsTransparentHasNoColour();
    void gradientsAreComparedWhereTheyDifferMost();
    void theDirectionOfAGradientIsSeen();
};

void VisibleDistanceTest::wordsHaveThresholds()
{
    const auto wordFor = [](double distance) { return word(visibility(distance)); };
    QCOMPARE(wordFor(0), QStringLiteral("invisible"));
    QCOMPARE(wordFor(0.0199), QStringLiteral("invisible"));
    QCOMPARE(wordFor(0.02), QStringLiteral("slight"));
    QCOMPARE(wordFor(0.05), QStringLiteral("clear"));
    QCOMPARE(wordFor(0.15), QStringLiteral("strong"));
    QCOMPARE(wordFor(1), QStringLiteral("strong"));
}

void VisibleDistanceTest::equalColoursDoNotDiffer()
{
    QCOMPARE(visibleDistance(QColor(10, 20, 30, 40), QColor(10, 20, 30, 40)), 0.0);
    const QBrush shaded = gradient({1, 0}, Qt::red, Qt::blue);
    QCOMPARE(visibleDistance(shaded, shaded), 0.0);
}

void VisibleDistanceTest::blackAndWhiteDifferMost()
{
    QVERIFY(qAbs(visibleDistance(QColor(Qt::black), QColor(Qt::white)) - 1) < 0.001);
}

void VisibleDistanceTest::translucencyIsSeen()
{
    const QColor white(Qt::white);
    const QColor black(Qt::black);
    const QColor half(255, 255, 255, 128);
    QVERIFY(visibleDistance(white, half) > 0.15);
    QVERIFY(visibleDistance(black, QColor(0, 0, 0, 128)) > 0.15);
    QVERIFY(visibleDistance(half, QColor(255, 255, 255, 127)) < 0.02);
}

void VisibleDistanceTest::whatIsTransparentHasNoColour()
{
    QCOMPARE(visibleDistance(QColor(255, 0, 0, 0), QColor(0, 255, 0, 0)), 0.0);
}

void VisibleDistanceTest::gradientsAreComparedWhereTheyDifferMost()
{
    const QBrush black(Qt::black);
    const double distance = visibleDistance(black, gradient({1, 0}, Qt::black, Qt::white));
    QVERIFY2(distance > 0.9 && distance <= 1, qPrintable(QString::number(distance)));
}

void VisibleDistanceTest::theDirectionOfAGradientIsSeen()
{
    const double distance = visibleDistance(gradient({1, 0}, Qt::black, Qt::white),
                                            gradient({0, 1}, Qt::black, Qt::white));
    QVERIFY2(distance > 0.8, qPrintable(QString::number(distance)));
}

QTEST_MAIN(VisibleDistanceTest)
#include "VisibleDistanceTest.moc"
