#pragma once

#include "FileSet.h"
#include "cursors/CursorSource.h"

namespace TARN::Artwork {

/// Returns the Windows cursor file of \a cursor: one image of 32 bits per pixel. Its mask makes
/// a hard edge for readers that know no alpha channel.
QByteArray cursorFile(const CursorPicture &cursor);

/// Converts the drawings ("*.svg") in \a sourceFolder: returns "cursors/<name>.cur" for each, and
/// the resource collection "cursors.qrc" that lists them. What is wrong with a drawing is told in
/// \a errors.
FileSet cursorFiles(const QString &sourceFolder, QStringList *errors);

} // namespace TARN::Artwork
