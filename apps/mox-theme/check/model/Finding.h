#pragma once

#include "check/model/Severity.h"

#include <QtCore/QString>
#include <QtCore/QVector>

namespace TARN::ThemeTool {

/// One thing that is wrong with a theme.
struct Finding
{
    QString rule; ///< the name of a rule, see RuleTable.h
    Severity severity = Severity::Warning;
    QString file;       ///< its path, as it can be opened
    int line = 0;       ///< from 1; 0: the whole file
    int column = 0;     ///< from 1; 0: the whole line
    QString text;       ///< one sentence, without a full stop at its end
    QString suggestion; ///< what to do about it, one sentence without a full stop; may be empty
};

} // namespace TARN::ThemeTool
