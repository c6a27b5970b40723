#pragma once

#include <QtCore/QJsonObject>

#include <check/reports/Reports.h>

/// Returns the path of a file that every format has to write in its own way.
QString strangeFile();

/// Returns a finding of \a rule that says "Something is wrong" and suggests nothing.
TARN::ThemeTool::Finding finding(const char *rule, TARN::ThemeTool::Severity severity,
                                 const QString &file, int line = 0, int column = 0);

/// Returns \a finding with \a suggestion.
TARN::ThemeTool::Finding suggesting(TARN::ThemeTool::Finding finding, const QString &suggestion);

/// Returns findings of every shape: with and without a position and a suggestion, below the current
/// folder and elsewhere, under a strange path.
QVector<TARN::ThemeTool::Finding> everyShape();

/// Returns the report of \a findings in \a format, which is one of JSON; empty when it is not.
QJsonObject jsonReport(const QVector<TARN::ThemeTool::Finding> &findings,
                       TARN::ThemeTool::ReportFormat format);
