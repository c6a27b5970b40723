#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QMap>
#include <QtCore/QString>

namespace TARN::ThemeTool {

/// Files by their path in a folder.
using FileSet = QMap<QString, QByteArray>;

} // namespace TARN::ThemeTool
