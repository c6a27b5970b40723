#include "PaintPlan.h"

#include "Measurements.h"
#include "PaintCases.h"
#include "Styles.h"

#include <QtCore/QCommandLineParser>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int RoundCount = 9;
constexpr int QuickRoundCount = 5;
constexpr int StartCount = 21;
constexpr int QuickStartCount = 11;

const QCommandLineOption
    quickOption(QStringLiteral("quick"),
                QStringLiteral("Fewer rounds, only fusion and the theme in both modes."));
const QCommandLineOption stylesOption(
    QStringLiteral("styles"),
    QStringLiteral("What to compare with fusion: theme, complete, stylesheet, nothing, keys of "
                   "style plugins (default: all of these that are installed)."),
    QStringLiteral("A,B,..."));
const QCommandLineOption casesOption(QStringLiteral("cases"),
                                     QStringLiteral("Only the cases whose name contains TEXT."),
                                     QStringLiteral("TEXT"));
const QCommandLineOption
    picturesOption(QStringLiteral("pictures"),
                   QStringLiteral("Measure nothing, but save pictures of what would be painted."),
                   QStringLiteral("FOLDER"));

QStringList allStyles()
{
    return QStringList{StyleNames::theme, StyleNames::complete} + installedStyles() +
           QStringList{StyleNames::styleSheet, StyleNames::nothing};
}

QStringList plannedStyles(const QCommandLineParser &parser)
{
    QStringList styles;
    if (parser.isSet(stylesOption)) {
        styles = parser.value(stylesOption).split(QLatin1Char(','), Qt::SkipEmptyParts);
    } else if (parser.isSet(quickOption)) {
        styles = QStringList{StyleNames::theme, StyleNames::complete};
    } else {
        styles = allStyles();
    }
    styles.removeAll(StyleNames::fusion);
    styles.prepend(StyleNames::fusion);
    styles.removeDuplicates();
    return styles;
}

} // namespace

PaintPlan readPlan(const QCoreApplication &application)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Measures what painting costs under the theme and under other styles, as "
                       "ratios to fusion.\nExit status: 0 when the theme keeps all limits, 1 when "
                       "it does not, 2 when it could not be measured."));
    parser.addOptions({quickOption, stylesOption, casesOption, picturesOption});
    parser.addHelpOption();
    parser.process(application);

    const bool isQuick = parser.isSet(quickOption);
    PaintPlan plan{plannedStyles(parser),
                   paintCaseNames(),
                   !parser.isSet(casesOption),
                   isQuick ? QuickRoundCount : RoundCount,
                   isQuick ? QuickStartCount : StartCount,
                   parser.value(picturesOption)};
    if (plan.isWhole) {
        plan.names += {MeasurementNames::formWindow, MeasurementNames::dataWindow,
                       MeasurementNames::paintingMemory, MeasurementNames::memory};
    } else {
        plan.names = plan.names.filter(parser.value(casesOption), Qt::CaseInsensitive);
    }
    if (plan.names.isEmpty()) {
        std::fprintf(stderr, "No case has this name\n");
        std::exit(NotMeasured);
    }
    return plan;
}
