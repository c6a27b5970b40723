#pragma once

#include <QtCore/QString>

namespace TARN {

/// Who is told of look-ups (see observeLookUps()); null for nobody, so that a look-up that nobody
/// observes costs a comparison more.
extern void (*lookUpObserver)(const QString &group, const QString &name);

/// Tells the observer, if there is one, that the variable at \a path was looked up.
void tellLookUp(const QString &path);

} // namespace TARN
