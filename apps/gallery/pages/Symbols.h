#pragma once

#include <QtGui/QIcon>

namespace TARN::Gallery {

/// Returns the gallery's icon \a name ("open", "zoom-in"; the files in "symbols"). It is always
/// painted in the text colours of the palette that the application has at that moment. A name
/// that does not exist gives an icon that paints nothing.
QIcon symbol(const QString &name);

} // namespace TARN::Gallery
