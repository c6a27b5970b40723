#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace TARN {

/// Returns why the resource file with the content \a archive must not be registered; an empty text
/// when nothing speaks against it. All of it is looked at: the tree, that each file can be
/// decompressed to the size that it tells, and the pictures as if they were asked for by name.
QString archiveFault(const QByteArray &archive);

/// Returns the first file in \a archive that lies in none of \a folders (":/Icons"); an empty text
/// when there is none. \a archive has to be one without a fault.
QString fileOutside(const QByteArray &archive, const QStringList &folders);

} // namespace TARN
