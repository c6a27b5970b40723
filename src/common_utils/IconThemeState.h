#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtGui/QIcon>

namespace TARN {

/// What has the toolkit look for icons of the icon theme anew when it is set. What was derived from
/// such an icon is outdated in another state.
struct IconThemeState
{
    QString name;
    QStringList searchPaths;
    QStringList fallbackSearchPaths;

    static IconThemeState current()
    {
        return {QIcon::themeName(), QIcon::themeSearchPaths(), QIcon::fallbackSearchPaths()};
    }

    // Setting the same paths again has the files in them read anew, too.
    friend bool operator==(const IconThemeState &a, const IconThemeState &b)
    {
        return a.name == b.name && a.searchPaths.isSharedWith(b.searchPaths) &&
               a.fallbackSearchPaths.isSharedWith(b.fallbackSearchPaths);
    }
};

} // namespace TARN
