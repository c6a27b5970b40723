#pragma once

#include <mox_common_theme_export.h>

#include <QtCore/QString>

namespace TARN {

/// Is told the group and the name of a theme variable; the name is empty when the whole group was
/// asked for.
using LookUpObserver = void (*)(const QString &group, const QString &name);

/// Has \a observer told of every look-up of a theme variable by its name or path from now on,
/// whether or not there is such a variable. Null ends it. Returns the former observer. To be called
/// on the GUI thread.
///
/// For tools that show which variables an application uses. It is the getters of ThemeResources and
/// the placeholders of stylesheets that are observed. What the style keeps for the life of the
/// process is looked up once only.
MOX_COMMON_THEME_EXPORT LookUpObserver observeLookUps(LookUpObserver observer);

} // namespace TARN
