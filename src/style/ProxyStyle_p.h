#pragma once

#include <mox_common_theme_export.h>

#include <QtCore/QString>
#include <QtGui/QAccessible>

class QObject;
class QSize;
class QStyleOption;

/// Helpers of the style's own painting.
namespace TARN::ProxyStyle_p {

/// Returns a pixmap-cache key: \a key followed by the state, the direction, the sub-controls, the
/// palette and \a size in hexadecimal digits, and for a spin box by its buttons and frame.
/// \a opt must not be null.
MOX_COMMON_THEME_EXPORT QString uniqueName(const QString &key, const QStyleOption *opt,
                                           const QSize &size);

/// Tells whether \a obj has an accessible interface and plays the role \a role in it.
MOX_COMMON_THEME_EXPORT bool isInstanceOf(QObject *obj, QAccessible::Role role);

} // namespace TARN::ProxyStyle_p
