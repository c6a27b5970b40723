#pragma once

#include "check/model/CheckSettings.h"
#include "check/model/Finding.h"

namespace TARN::ThemeTool {

/// Checks the theme in the folder \a directory and returns what is wrong with it, file by file in
/// the order of the files' lines. Needs a QGuiApplication.
QVector<Finding> checkTheme(const QString &directory, const CheckSettings &settings = {});

/// Returns one line that says why \a directory cannot be checked at all; empty when it can.
QString unreadableTheme(const QString &directory);

} // namespace TARN::ThemeTool
