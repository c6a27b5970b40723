#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QMap>
#include <QtCore/QStringList>

namespace TARN::Artwork {

/// Files by their path in a folder.
using FileSet = QMap<QString, QByteArray>;

/// Returns a resource collection that compiles the files at \a paths in under their file names,
/// in the resource folder \a prefix.
QByteArray resourceCollection(const QString &prefix, const QStringList &paths);

/// Writes \a files into \a folder and removes the files in their folders that end like one of
/// them and are not among them. Returns what went wrong; empty when nothing did.
QStringList writeFiles(const QString &folder, const FileSet &files);

} // namespace TARN::Artwork
