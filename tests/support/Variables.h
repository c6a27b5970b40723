#pragma once

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QVariantMap>

/// Publishes \a groups as the theme's variables on the application object. In a process that tests
/// the complete mode, a theme is applied in that mode by which they are published.
void publishVariables(const QVariantMap &groups);

/// Publishes \a factors as the disabled factors on the application object.
void publishFactors(const QVariantMap &factors);

/// Returns a group of solid brushes, one for each of \a colors by the same name.
QVariantMap brushGroup(const QMap<QString, QString> &colors);

/// Returns a group of colours by name, each given in a form that QColor understands.
QVariantMap colorGroup(const QMap<QString, QString> &colors);
