#pragma once

#include "check/model/Severity.h"

#include <QtCore/QString>
#include <QtCore/QVector>

namespace TARN::ThemeTool {

/// A rule that themes are checked by.
struct Rule
{
    QString name;        ///< lower-case words joined by dashes
    Severity severity;   ///< unless the author says otherwise
    QString description; ///< what the rule finds, and what the library does with it; a sentence
};

/// Returns all rules, sorted by name.
const QVector<Rule> &rules();

/// Returns the rule \a name; null when there is none.
const Rule *findRule(const QString &name);

} // namespace TARN::ThemeTool
