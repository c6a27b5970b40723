#pragma once

#include <QtCore/QString>

namespace TARN::ThemeTool {

/// A place in a file that findings point to.
struct Place
{
    QString file;
    int line = 0;   ///< from 1; 0: the whole file
    int column = 0; ///< from 1; 0: the whole line
};

} // namespace TARN::ThemeTool
