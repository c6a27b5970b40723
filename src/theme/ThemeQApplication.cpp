#include "theme/ThemeQApplication.h"

#include "catalogue/Properties.h"
#include "theme/Theme.h"
#include "theme/ThemeFactory.h"

namespace TARN {

namespace {

/// Overwrites \a value with the argument that follows the first \a option in \a arguments.
void takeOption(const QStringList &arguments, const QString &option, QString &value)
{
    const int index = arguments.indexOf(option);
    if (index >= 0 && index + 1 < arguments.size()) {
        value = arguments.at(index + 1);
    }
}

bool wantsCompleteTheming = false;

} // namespace

ThemeQApplication::ThemeQApplication(int &argc, char **argv)
    : ThemeQApplication(argc, argv, QString(), QString())
{
}

ThemeQApplication::ThemeQApplication(int &argc, char **argv, const QString &theme,
                                     const QString &repository)
    : QApplication(argc, argv)
{
    if (wantsCompleteTheming) {
        setProperty(nameOf(Property::AppCompleteTheming), true);
    }
    init(theme, repository);
}

ThemeQApplication::~ThemeQApplication() = default;

void ThemeQApplication::setCompleteTheming(bool isComplete)
{
    wantsCompleteTheming = isComplete;
}

void ThemeQApplication::init(QString theme, QString repository)
{
    parseArguments(arguments(), theme, repository);
    if (!repository.isEmpty()) {
        initThemesRepository(repository);
    }
    if (!theme.isEmpty()) {
        setTheme(theme);
    }
}

void ThemeQApplication::parseArguments(const QStringList &arguments, QString &theme,
                                       QString &repository) const
{
    static const QString themeArg = QStringLiteral("--theme");
    static const QString themeRepositoryArgument = QStringLiteral("--theme-repository");
    takeOption(arguments, themeArg, theme);
    takeOption(arguments, themeRepositoryArgument, repository);
}

void ThemeQApplication::initThemesRepository(const QString &path)
{
    ThemeFactory::getInstance()->setThemesRepositoryPath(
        path.isEmpty() ? applicationDirPath() + QLatin1String("Themes") : path);
}

QString ThemeQApplication::getThemeRepository() const
{
    return ThemeFactory::getInstance()->getThemesRepositoryPath();
}

bool ThemeQApplication::setTheme(const QString &name)
{
    Theme *theme = ThemeFactory::getInstance()->getTheme(name);
    if (!theme) {
        return false;
    }
    setTheme(*theme);
    return true;
}

void ThemeQApplication::setTheme(Theme &theme)
{
    theme.customize(this);
    m_currentTheme = &theme;
}

Theme *ThemeQApplication::getCurrentTheme() const
{
    return m_currentTheme;
}

} // namespace TARN
