#include <QtTest/QtTest>

#include <color/Oklch.h>
#include <generator/recipes/ThemeDefinition.h>
#include <mox-theme/support/DefinedColors.h>
#include <mox-theme/support/SampleTokens.h>
#include <mox-theme/support/SimulatedVision.h>

using namespace TARN::ThemeTool;

namespace {

// Two areas side by side are just told apart at a distance of 0.02. The thresholds are multiples of
// it.

// Status colours and the accent stand alone, and a user has to recognise them.
constexpr double statusStep = 0.06;
// Neighbouring series touch.
constexpr double seriesStep = 0.05;

const QStringList statusColors{
    QStringLiteral("StatusSuccessColor"), QStringLiteral("StatusWarningColor"),
    QStringLiteral("StatusDangerColor"), QStringLiteral("StatusInfoColor")};

/// Returns which two of \a names look alike in some vision.
QString alikeInSomeVision(const DefinedColors &colors, const QString &one, const QString &other,
                          double step)
{
    QString alike;
    for (const Vision &vision : visions()) {
        const double distance =
            colorDistance(seenBy(vision, colors.seen(one)), seenBy(vision, colors.seen(other)));
        if (distance < step) {
            alike += QStringLiteral("%1 and %2, %3: %4; ")
                         .arg(one, other, QString::fromLatin1(vision.name))
                         .arg(distance, 0, 'f', 3);
        }
    }
    return alike;
}

QString alikeAmong(const DefinedColors &colors, const QStringList &names, double step)
{
    QString alike;
    for (int i = 0; i < names.size(); ++i) {
        for (int j = 0; j < i; ++j) {
            alike += alikeInSomeVision(colors, names.at(j), names.at(i), step);
        }
    }
    return alike;
}

} // namespace

/// What a user has to recognise looks different to those, too, who see fewer colours.
class ColorVisionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyVisionKeepsGreys();
    void statusColorsDifferInEveryVision_data() { addManyRows(); }
    void statusColorsDifferInEveryVision();
    void accentIsNoStatusInAnyVision_data() { addShippedRows(); }
    void accentIsNoStatusInAnyVision();
    void seriesDifferInEveryVision_data() { addManyRows(); }
    void seriesDifferInEveryVision();
};

void ColorVisionTest::everyVisionKeepsGreys()
{
    for (const Vision &vision : visions()) {
        for (const int grey : {0, 1, 60, 128, 254, 255}) {
            QCOMPARE(seenBy(vision, QColor(grey, grey, grey)).rgb(), qRgb(grey, grey, grey));
        }
    }
}

void ColorVisionTest::statusColorsDifferInEveryVision()
{
    QFETCH(const Tokens, tokens);
    const DefinedColors colors(defineTheme(tokens));
    QCOMPARE(alikeAmong(colors, statusColors, statusStep), QString());
}

/// An author's accent may be that of a status, which no theme can help.
void ColorVisionTest::accentIsNoStatusInAnyVision()
{
    QFETCH(const Tokens, tokens);
    const DefinedColors colors(defineTheme(tokens));
    for (const QString &status : statusColors) {
        QCOMPARE(alikeInSomeVision(colors, QStringLiteral("MainColor"), status, statusStep),
                 QString());
    }
}

void ColorVisionTest::seriesDifferInEveryVision()
{
    QFETCH(const Tokens, tokens);
    const DefinedColors colors(defineTheme(tokens));
    constexpr int seriesCount = 11;
    const auto series = [](int number) {
        return QStringLiteral("Series%1Color").arg(number, 2, 10, QLatin1Char('0'));
    };
    for (int number = 1; number < seriesCount; ++number) {
        QCOMPARE(alikeInSomeVision(colors, series(number), series(number + 1), seriesStep),
                 QString());
    }
}

QTEST_GUILESS_MAIN(ColorVisionTest)
#include "ColorVisionTest.moc"
