#pragma once

#include "check/model/CheckSettings.h"
#include "check/model/Finding.h"
#include "check/model/Place.h"

#include <QtCore/QStringList>

namespace TARN::ThemeTool {

/// Returns \a name in quotation marks, cut when it is long and without characters that would break
/// a line.
QString quoted(const QString &name);

/// Returns "Did you mean" and \a name; an empty text when \a name is empty.
QString didYouMean(const QString &name);

/// Collects findings, with the severity that the author gives to their rules.
class FindingList
{
public:
    explicit FindingList(const CheckSettings &settings);

    /// Whether findings of \a rule are wanted at all.
    bool wants(const QString &rule) const;

    /// Adds a finding, unless its rule is switched off.
    void add(const QString &rule, const Place &place, const QString &text,
             const QString &suggestion = {});

    /// Returns the findings file by file, in the order of the lines. The files come in the order
    /// of \a paths, those that are not among them afterwards.
    QVector<Finding> sorted(const QStringList &paths) const;

private:
    Severity severity(const QString &rule) const;

    QMap<QString, Severity> m_severities;
    QVector<Finding> m_findings;
};

} // namespace TARN::ThemeTool
