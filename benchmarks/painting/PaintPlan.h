#pragma once

#include <QtCore/QStringList>

class QCoreApplication;

/// The benchmark's exit status.
enum ExitStatus { LimitsKept = 0, LimitsNotKept = 1, NotMeasured = 2 };

/// What is to be measured, and how often.
struct PaintPlan
{
    QStringList styles; ///< the first is "fusion"
    QStringList names;  ///< the cases, the windows and the memory, which comes last
    bool isWhole;       ///< whether nothing is left out
    int rounds;
    int starts;
    QString pictureFolder; ///< where to save pictures instead; empty when it is to be measured
};

/// Reads the command line. Ends the process when it asks for help or makes no sense.
PaintPlan readPlan(const QCoreApplication &application);
