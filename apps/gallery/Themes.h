#pragma once

#include <QtCore/QString>

namespace TARN::Gallery {

/// Returns the name of the theme that the gallery starts with.
QString defaultTheme();

/// Returns the path of the theme repository that is installed with the gallery. Can be asked for
/// before the application object exists.
QString shippedRepository();

/// Makes \a path the theme repository and returns one line that says why it has no themes to
/// offer; empty when it has some.
QString selectRepository(const QString &path);

/// Returns one line that says why the repository's theme \a name cannot be applied; empty when it
/// can.
QString themeProblem(const QString &name);

} // namespace TARN::Gallery
