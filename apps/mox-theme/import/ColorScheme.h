#pragma once

#include "generator/tokens/Tokens.h"

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtGui/QColor>

namespace TARN::ThemeTool {

/// What a colour scheme that was written for other programs says, in the terms of a theme.
struct ColorScheme
{
    QString kind;   ///< what such schemes are called
    QString name;   ///< as it is written; empty when the scheme gives none
    QString author; ///< empty when the scheme names none
    QColor accent;
    /// By the names of colour variables, as the scheme has them: possibly translucent, not
    /// necessarily legible.
    QMap<QString, QColor> colors;
};

/// A problem of a scheme's file.
using SchemeProblem = TokenProblem;

} // namespace TARN::ThemeTool
