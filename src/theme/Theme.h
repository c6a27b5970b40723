#pragma once

#include <mox_common_theme_export.h>

#include <QtCore/QString>

class QApplication;

namespace TARN {

/// A theme that can be applied to an application.
class MOX_COMMON_THEME_EXPORT Theme
{
public:
    Theme() = default;
    Theme(const Theme &) = delete;
    Theme &operator=(const Theme &) = delete;
    virtual ~Theme();

    /// Returns the name that the theme shows to people; empty when the theme has none.
    virtual QString getName() const = 0;

    /// Applies the theme to \a app, which stays the caller's. To be called on the GUI thread.
    virtual void customize(QApplication *app) = 0;
};

} // namespace TARN
