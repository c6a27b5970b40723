#pragma once

#include "check/model/Place.h"

#include <QtCore/QHash>
#include <QtCore/QMap>
#include <QtCore/QSet>
#include <QtGui/QBrush>
#include <QtGui/QColor>

namespace TARN::ThemeTool {

/// What a theme's configuration file defines once its faulty entries are mended: lists go on after
/// a faulty entry here, for what the library loses there comes back with the mended entry and is
/// not worth a finding of its own.
struct Configuration
{
    /// The values of the sound entries. Colours and brushes include the "Disabled" variants that
    /// the library derives; these have the values of what they derive from.
    QMap<QString, QColor> colors;
    QMap<QString, QBrush> brushes;
    QMap<QString, QColor> internalColors;
    QMap<QString, QBrush> internalBrushes;
    QMap<QString, double> opacities;
    QMap<QString, int> cornerRadii;
    QMap<QString, int> factors;

    /// By group and name, where the entry stands. Faulty entries are here, too.
    QHash<QString, QMap<QString, Place>> entries;

    /// By group, where the list of its entries stands or would stand.
    QHash<QString, Place> lists;

    /// The names of colours that brushes refer to.
    QSet<QString> colorsOfBrushes;

    /// The brushes whose look is not known, since it depends on a derived variant.
    QSet<QString> derivedBrushes;

    /// Whether the file was read. Nothing follows from what an unread file lacks.
    bool wasRead = false;

    /// Tells whether \a group has an entry \a name, be it one that the library derives.
    bool knows(const QString &group, const QString &name) const;

    /// Returns the names of the entries of \a group.
    QStringList names(const QString &group) const { return entries.value(group).keys(); }
};

/// How the names begin that the library derives.
extern const QString derivedPrefix;

/// Returns \a name without the beginning of derived names.
QString withoutDerivedPrefix(const QString &name);

} // namespace TARN::ThemeTool
