#include "theme/ThemeFootprint.h"

#include "resources/files/CheckedFolder.h"
#include "resources/files/RegisteredArchive.h"
#include "theme/StyleInstallation.h"

#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QMap>
#include <QtCore/QStringList>
#include <QtGui/QIcon>
#include <QtWidgets/QApplication>

#include <memory>
#include <utility>
#include <vector>

namespace TARN {

namespace {

/// The images that themes have added, which outlive the application.
struct Additions
{
    std::vector<std::unique_ptr<CheckedFolder>> images;
    std::vector<std::unique_ptr<RegisteredArchive>> resourceFiles;
    QStringList iconThemeFolders;
    QStringList fallbackIconFolders;
    QMap<QString, QStringList> searchPaths;
};

Additions &additions()
{
    static Additions ofTheProcess;
    return ofTheProcess;
}

/// Returns \a paths without the last occurrence of each of \a added: an earlier one may be the
/// application's own.
QStringList without(QStringList paths, const QStringList &added)
{
    for (const QString &path : added) {
        const int index = paths.lastIndexOf(path);
        if (index >= 0) {
            paths.removeAt(index);
        }
    }
    return paths;
}

/// Returns the folders that the resource files of the theme \a name have a reason to add to. Other
/// files could be taken for the program's own.
QStringList resourceFolders(const QString &name)
{
    return {QStringLiteral(":/Icons"), QStringLiteral(":/icons"), QStringLiteral(":/Cursors"),
            QStringLiteral(":/TARN/Themes/") + name};
}

} // namespace

ThemeFootprint &ThemeFootprint::of(QApplication &app)
{
    auto *footprint = app.findChild<ThemeFootprint *>(QString(), Qt::FindDirectChildrenOnly);
    return footprint ? *footprint : *new ThemeFootprint(app);
}

ThemeFootprint::ThemeFootprint(QApplication &app)
    : QObject(&app)
    , m_basePalette(QGuiApplication::palette())
{
}

const QPalette &ThemeFootprint::basePalette() const
{
    return m_basePalette;
}

const QFont &ThemeFootprint::baseFont() const
{
    return m_baseFont;
}

bool ThemeFootprint::isEmpty() const
{
    return m_isEmpty;
}

void ThemeFootprint::addFonts(const QString &folder)
{
    m_fonts.add(folder);
    m_isEmpty = false;
}

void ThemeFootprint::replaceFonts(const QString &folder)
{
    m_fonts.replace(folder);
    m_isEmpty = false;
}

QString ThemeFootprint::addImages(const QString &folder, const QString &name)
{
    additions().images.push_back(std::make_unique<CheckedFolder>(folder, name));
    return additions().images.back()->path();
}

void ThemeFootprint::addIconThemes(const QString &folder)
{
    QIcon::setThemeSearchPaths(QIcon::themeSearchPaths() << folder);
    additions().iconThemeFolders.append(folder);
}

void ThemeFootprint::addFallbackIcons(const QString &folder)
{
    QIcon::setFallbackSearchPaths(QIcon::fallbackSearchPaths() << folder);
    additions().fallbackIconFolders.append(folder);
}

void ThemeFootprint::addResourceFiles(const QString &folder, const QString &name)
{
    const bool isComplete = wantedMode(*qApp) == Mode::Complete;
    const QStringList places = isComplete ? resourceFolders(name) : QStringList();
    QDirIterator entries(folder);
    while (entries.hasNext()) {
        const QString path = entries.next();
        if (!path.endsWith(QLatin1String(".rcc"))) {
            continue;
        }
        if (std::unique_ptr<RegisteredArchive> archive = registerArchive(path, places)) {
            additions().resourceFiles.push_back(std::move(archive));
        }
    }
}

void ThemeFootprint::addSearchPath(const QString &prefix, const QString &folder)
{
    QDir::addSearchPath(prefix, folder);
    additions().searchPaths[prefix].append(folder);
}

void ThemeFootprint::takeBackImages()
{
    Additions &added = additions();
    const auto searchPaths = std::exchange(added.searchPaths, {});
    for (auto it = searchPaths.cbegin(); it != searchPaths.cend(); ++it) {
        QDir::setSearchPaths(it.key(), without(QDir::searchPaths(it.key()), it.value()));
    }
    QIcon::setFallbackSearchPaths(
        without(QIcon::fallbackSearchPaths(), std::exchange(added.fallbackIconFolders, {})));
    QIcon::setThemeSearchPaths(
        without(QIcon::themeSearchPaths(), std::exchange(added.iconThemeFolders, {})));
    added.images.clear();
    added.resourceFiles.clear();
}

} // namespace TARN
