#pragma once

#include <QtGui/QIcon>

namespace TARN::Gallery {

/// Returns the theme's or the library's icon \a name ("action.copy"). It is always painted in the
/// text colours of the palette that the application has at that moment. A name that does not exist
/// gives an icon that paints nothing.
QIcon symbol(const QString &name);

} // namespace TARN::Gallery
