#include "Themes.h"

#include "samples/Literals.h"

#include <theme/BaseThemeSettings.h>
#include <theme/ThemeFactory.h>

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

namespace TARN::Gallery {

QString defaultTheme()
{
    return "Dark"_s;
}

QString shippedRepository()
{
    // The toolkit knows the program's folder only once there is an application object.
    const QDir programFolder = QFileInfo(QFile::symLinkTarget("/proc/self/exe"_s)).dir();
    return QDir::cleanPath(programFolder.filePath("../share/mox_common_theme/Themes"_s));
}

QString selectRepository(const QString &path)
{
    if (!QFileInfo(path).isDir()) {
        return "theme repository '"_s + path + "' is not a folder"_s;
    }
    ThemeFactory *factory = ThemeFactory::getInstance();
    factory->setThemesRepositoryPath(path);
    if (factory->getAvailableThemes().isEmpty()) {
        return "theme repository '"_s + path + "' holds no theme"_s;
    }
    return {};
}

QString themeProblem(const QString &name)
{
    const ThemeFactory *factory = ThemeFactory::getInstance();
    const QStringList names = factory->getAvailableThemes();
    if (!names.contains(name)) {
        return "unknown theme '"_s + name + "'; available: "_s + names.join(", "_s);
    }
    const QString description = factory->getThemesRepositoryPath() + "/"_s + name + "/theme.xml"_s;
    if (BaseThemeSettings(description).getStatus() != 0) {
        return "theme '"_s + name + "' has no readable description '"_s + description + "'"_s;
    }
    return {};
}

} // namespace TARN::Gallery
