#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QMap>

#include <generator/recipes/ThemeDefinition.h>

/// Returns a theme of a few values, each of which differs from all others of its kind.
TARN::ThemeTool::ThemeDefinition smallTheme();

/// Returns the files and folders below \a folder by their paths in it; folders are empty.
QMap<QString, QByteArray> filesBelow(const QString &folder);
