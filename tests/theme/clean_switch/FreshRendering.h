#pragma once

#include <QtGui/QImage>

/// Returns how the widgets \a widgets, "mixed" or "open", look in a process that has only seen the
/// theme in \a directory.
QImage freshRendering(const QString &widgets, const QString &directory);

/// Compares two renderings, and saves them under \a name when they differ.
bool areEqual(const QImage &actual, const QImage &expected, const QString &name);
