#include "theme/ThemeFootprint.h"

#include "resources/ThemeResources.h"

#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QResource>
#include <QtGui/QFontDatabase>
#include <QtGui/QIcon>
#include <QtWidgets/QApplication>

#include <utility>

namespace TARN {

namespace {

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

} // namespace

ThemeFootprint &ThemeFootprint::of(QApplication &app)
{
    auto *footprint = app.findChild<ThemeFootprint *>(QString(), Qt::FindDirectChildrenOnly);
    return footprint ? *footprint : *new ThemeFootprint(app);
}

ThemeFootprint::ThemeFootprint(QApplication &app)
    : QObject(&app)
    , m_app(app)
    , m_basePalette(QGuiApplication::palette())
    , m_baseFont(QGuiApplication::font())
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
    return m_searchPaths.isEmpty();
}

void ThemeFootprint::addFonts(const QString &folder)
{
    const QFileInfoList files =
        QDir(folder).entryInfoList({QStringLiteral("*.ttf")}, QDir::NoFilter, QDir::NoSort);
    for (const QFileInfo &file : files) {
        const int id = QFontDatabase::addApplicationFont(file.absoluteFilePath());
        if (id >= 0) {
            m_fonts.insert(id, file.absoluteFilePath());
        }
    }
}

void ThemeFootprint::forgetFontLookUps() const
{
    if (m_fonts.isEmpty()) {
        return;
    }
    // The font database forgets what it has found when a font is removed, and not before.
    const int id = QFontDatabase::addApplicationFont(m_fonts.first());
    QFontDatabase::removeApplicationFont(id);
}

void ThemeFootprint::addIconTheme(const QString &folder, const QString &name)
{
    QIcon::setThemeSearchPaths(QIcon::themeSearchPaths() << folder);
    m_iconThemeFolders.append(folder);
    QIcon::setThemeName(name);
}

void ThemeFootprint::addFallbackIcons(const QString &folder)
{
    QIcon::setFallbackSearchPaths(QIcon::fallbackSearchPaths() << folder);
    m_fallbackIconFolders.append(folder);
}

void ThemeFootprint::addResourceFiles(const QString &folder)
{
    QDirIterator entries(folder);
    while (entries.hasNext()) {
        const QString path = entries.next();
        if (path.endsWith(QLatin1String(".rcc")) && QResource::registerResource(path)) {
            m_resourceFiles.append(path);
        }
    }
}

void ThemeFootprint::addSearchPath(const QString &prefix, const QString &folder)
{
    QDir::addSearchPath(prefix, folder);
    m_searchPaths[prefix].append(folder);
}

void ThemeFootprint::takeBack()
{
    for (auto it = m_searchPaths.cbegin(); it != m_searchPaths.cend(); ++it) {
        QDir::setSearchPaths(it.key(), without(QDir::searchPaths(it.key()), it.value()));
    }
    m_searchPaths.clear();

    QIcon::setFallbackSearchPaths(
        without(QIcon::fallbackSearchPaths(), std::exchange(m_fallbackIconFolders, {})));
    QIcon::setThemeSearchPaths(
        without(QIcon::themeSearchPaths(), std::exchange(m_iconThemeFolders, {})));
    for (const QString &file : std::exchange(m_resourceFiles, {})) {
        QResource::unregisterResource(file);
    }
    const QList<int> fontIds = std::exchange(m_fonts, {}).keys();
    for (const int id : fontIds) {
        QFontDatabase::removeApplicationFont(id);
    }
    m_app.setProperty(ThemeResources::getInternalThemeVariablePropertyName(), QVariant());
}

} // namespace TARN
