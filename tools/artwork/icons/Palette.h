#pragma once

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace TARN::Artwork {

/// The colours of the drawings by name ("ink"), as "#RRGGBB".
using Palette = QMap<QString, QString>;

/// Reads the table of colours: a head line "colour palette palette ...", then a line for each
/// colour. Returns the palettes by name.
QMap<QString, Palette> parsePalettes(const QString &text, QStringList *errors);

} // namespace TARN::Artwork
