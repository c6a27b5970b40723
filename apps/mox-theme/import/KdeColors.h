#pragma once

#include "import/ColorScheme.h"

#include <QtCore/QByteArray>

namespace TARN::ThemeTool {

/// What a KDE colour scheme (a ".colors" file) holds.
struct KdeColors
{
    QString name;
    /// By "<group>/<key>", as in "Colors:Window/BackgroundNormal"; a group inside another is
    /// written "<group>/<group>/<key>".
    QMap<QString, QColor> colors;
};

/// Tells whether \a text looks like a KDE colour scheme.
bool isKdeColors(const QByteArray &text);

/// Reads \a text, the content of a KDE colour scheme, into \a colors. Stops at the first problem.
SchemeProblem readKdeColors(const QByteArray &text, KdeColors &colors);

/// Returns what \a colors say in the terms of a theme. Where one set of colours is missing, the
/// next similar one stands in.
ColorScheme colorScheme(const KdeColors &colors);

} // namespace TARN::ThemeTool
