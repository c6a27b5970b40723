#pragma once

#include "check/model/Finding.h"

#include <QtCore/QMap>

namespace TARN::ThemeTool {

/// How a theme is checked.
struct CheckSettings
{
    QMap<QString, Severity> rules; ///< by name; the others keep their severity
    bool all = false;              ///< one finding for each missing variable, not for each family
};

/// Checks the theme in the folder \a directory and returns what is wrong with it, file by file in
/// the order of the files' lines. Needs a QGuiApplication.
QVector<Finding> checkTheme(const QString &directory, const CheckSettings &settings = {});

/// Returns one line that says why \a directory cannot be checked at all; empty when it can.
QString unreadableTheme(const QString &directory);

} // namespace TARN::ThemeTool
