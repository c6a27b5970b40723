#pragma once

#include <QtCore/QString>
#include <QtCore/QTemporaryDir>

#include <memory>

namespace TARN {

/// Tells whether the relative path \a path leads out of the folder that it counts from.
bool leadsOutside(const QString &path);

/// A theme's folder of images as it is given to those who read it by themselves: the toolkit's icon
/// themes, and whoever opens a file of a search path.
///
/// All that lies in it is looked at once. Where every picture may be used, as nearly always, it is
/// the folder itself; otherwise a temporary one for as long as this lives, of links to what may be,
/// so that the rest is missing. A warning tells of each file that is left out.
class CheckedFolder
{
public:
    /// Looks at \a folder, whose path ends with a slash and which is that of the theme \a name. A
    /// name that leads out of it leads nowhere.
    CheckedFolder(const QString &folder, const QString &name);

    /// Returns the path of what may be used; it ends with a slash.
    const QString &path() const { return m_path; }

private:
    QString m_path;
    std::unique_ptr<QTemporaryDir> m_links;
};

} // namespace TARN
