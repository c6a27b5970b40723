#include "PaintReport.h"

#include "PaintCases.h"
#include "Styles.h"

#include <algorithm>
#include <cstdio>

namespace {

constexpr int NameWidth = 36;
constexpr int ValueWidth = 14;
constexpr int RatioWidth = 12;

void printCell(const QString &text, int width)
{
    std::printf("%*s", width, qPrintable(text));
}

void printRowName(const QString &name)
{
    printCell(name, -NameWidth);
}

QString ratioText(double ratio)
{
    return QString::number(ratio, 'f', 2);
}

void printHead(const QStringList &styles)
{
    printRowName({});
    printCell(StyleNames::fusion, ValueWidth);
    for (const QString &style : styles) {
        printCell(style, RatioWidth);
    }
    std::printf("\n");
}

void printRow(const Measurements &measurements, const QStringList &styles, const QString &name,
              double scale, const char *unit)
{
    if (!measurements.has(StyleNames::fusion, name)) {
        return;
    }
    const double value = measurements.value(StyleNames::fusion, name) * scale;
    printRowName(name);
    printCell(QStringLiteral("%1 %2").arg(value, 0, 'f', 1).arg(QLatin1String(unit)), ValueWidth);
    for (const QString &style : styles) {
        const bool isMeasured = measurements.has(style, name);
        printCell(isMeasured ? ratioText(measurements.ratio(style, name)) : QStringLiteral("-"),
                  RatioWidth);
    }
    std::printf("\n");
}

void printMeans(const Measurements &measurements, const QStringList &styles)
{
    printRowName(QStringLiteral("geometric mean of the cases"));
    printCell({}, ValueWidth);
    for (const QString &style : styles) {
        printCell(ratioText(measurements.meanRatio(style, paintCaseNames())), RatioWidth);
    }
    std::printf("\n");
}

/// Prints whether a limit is met, and by how much.
void printJudgement(const Judgement &judgement)
{
    std::printf("%-8s %s: %.3f (at most %.2f)\n", judgement.isMet() ? "met" : "NOT MET",
                qPrintable(judgement.text), judgement.value, judgement.highest);
}

bool isMet(const Judgement &judgement)
{
    return judgement.isMet();
}

} // namespace

void printTable(const Measurements &measurements, const QStringList &styles)
{
    printHead(styles);
    for (const QString &name : paintCaseNames()) {
        printRow(measurements, styles, name, 1e-3, "us");
    }
    printMeans(measurements, styles);
    printRow(measurements, styles, MeasurementNames::formWindow, 1e-3, "us");
    printRow(measurements, styles, MeasurementNames::dataWindow, 1e-3, "us");
    printRow(measurements, styles, MeasurementNames::paintingMemory, 1e-3, "kB");
    printRow(measurements, styles, MeasurementNames::memory, 1e-3, "kB");
    printRow(measurements, styles, MeasurementNames::start, 1e-6, "ms");
    std::printf("\n");
}

bool printLimits(const QString &style, const std::vector<Judgement> &cases,
                 const std::vector<Judgement> &whole)
{
    std::printf("%s\n", qPrintable(style));
    std::for_each(whole.cbegin(), whole.cend(), printJudgement);
    for (const Judgement &judgement : cases) {
        if (!judgement.isMet()) {
            printJudgement(judgement);
        }
    }
    std::printf("%d of %d cases keep their limit\n",
                static_cast<int>(std::count_if(cases.cbegin(), cases.cend(), isMet)),
                static_cast<int>(cases.size()));
    return std::all_of(whole.cbegin(), whole.cend(), isMet) &&
           std::all_of(cases.cbegin(), cases.cend(), isMet);
}
