#pragma once

#include "import/ColorScheme.h"

#include <QtCore/QByteArray>

#include <array>

namespace TARN::ThemeTool {

/// What a base16 or base24 scheme holds.
struct Base16
{
    QString name;
    QString author;
    /// base00 to base0F, then base10 to base17, which are invalid where a scheme does without.
    std::array<QColor, 24> colors;
};

/// Tells whether \a text looks like a base16 or base24 scheme.
bool isBase16(const QByteArray &text);

/// Reads \a text, the content of a base16 or base24 scheme, into \a scheme. Both forms are taken:
/// with the colours at the top level, or below "palette". Stops at the first problem.
SchemeProblem readBase16(const QByteArray &text, Base16 &scheme);

/// Returns what \a scheme says in the terms of a theme.
ColorScheme colorScheme(const Base16 &scheme);

} // namespace TARN::ThemeTool
