#include "theme/ThemeFactory.h"

#include "theme/BaseTheme.h"

#include <QtCore/QDir>

namespace TARN {

ThemeFactory *ThemeFactory::getInstance()
{
    static ThemeFactory factory;
    return &factory;
}

ThemeFactory::ThemeFactory() = default;

ThemeFactory::~ThemeFactory()
{
    qDeleteAll(m_themes);
}

void ThemeFactory::setThemesRepositoryPath(const QString &path)
{
    m_repositoryPath = path;
    m_themeDirectories.clear();
    const QDir repository(path);
    const QStringList names =
        repository.entryList(QDir::AllDirs | QDir::NoDotAndDotDot, QDir::NoSort);
    for (const QString &name : names) {
        m_themeDirectories.insert(name, repository.absolutePath() + QLatin1Char('/') + name);
    }
}

QString ThemeFactory::getThemesRepositoryPath() const
{
    return m_repositoryPath;
}

QStringList ThemeFactory::getAvailableThemes() const
{
    return m_themeDirectories.keys();
}

Theme *ThemeFactory::getTheme(const QString &name)
{
    // Nothing in the library fills the cache; an extension that does is honoured.
    if (Theme *theme = m_themes.value(name)) {
        return theme;
    }
    const QString path = m_themeDirectories.value(name);
    return path.isEmpty() ? nullptr : readTheme(path);
}

Theme *ThemeFactory::readTheme(const QString &path)
{
    return new BaseTheme(path);
}

} // namespace TARN
