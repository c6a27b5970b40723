#pragma once

#include "check/model/FindingList.h"
#include "check/model/ThemeFile.h"

#include <functional>
#include <optional>

namespace TARN::ThemeTool {

/// What makes the library stop reading a list at an entry.
struct Fault
{
    QString rule;
    QString text; ///< a sentence
    QString suggestion;
    QDomElement element; ///< where the fault is; null: the entry as a whole
};

using Diagnosis = std::function<std::optional<Fault>(const QDomElement &entry)>;

/// What the entries of a list are called in sentences.
struct Noun
{
    QString one;
    QString many;
};

/// Walks over the children \a tag of \a list, over all children when \a tag is null, and reports
/// the entries in which \a diagnose finds a fault; the first with how many entries after it the
/// library loses.
void checkEntries(const QDomElement &list, const QString &tag, const Noun &noun,
                  const ThemeFile &file, FindingList &findings, const Diagnosis &diagnose);

/// Returns the end of a sentence on a faulty entry: that the \a count entries after it are lost.
QString lostEntries(int count, const Noun &noun);

/// Reports the children of \a parent whose names are not among \a tags, and the second and later
/// children of those in \a single.
void checkChildren(const QDomElement &parent, const QStringList &tags, const QStringList &single,
                   const ThemeFile &file, FindingList &findings);

} // namespace TARN::ThemeTool
