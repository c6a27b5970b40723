#include "preview/ThemeSession.h"

#include "preview/ThemeFiles.h"

#include <theme/BaseTheme.h>

#include <QtCore/QFileInfo>
#include <QtWidgets/QApplication>

namespace TARN::ThemeTool {

ThemeSession::ThemeSession(QApplication &application, const QString &directory)
    : m_application(application)
    , m_directory(directory)
{
    // Each theme takes the former's place, and leaves nothing of it.
    m_application.setProperty("appLiveThemeSwitch", true);
}

ThemeSession::~ThemeSession() = default;

bool ThemeSession::apply()
{
    m_problem = unappliableTheme(m_directory);
    if (!m_problem.isEmpty()) {
        return false;
    }
    auto theme = std::make_unique<BaseTheme>(m_directory);
    theme->customize(&m_application);
    m_theme = std::move(theme);
    return true;
}

QString ThemeSession::problem() const
{
    return m_problem;
}

QString ThemeSession::themeName() const
{
    const QString name = m_theme ? m_theme->getName() : QString();
    return name.isEmpty() ? QFileInfo(m_directory).fileName() : name;
}

QString ThemeSession::directory() const
{
    return m_directory;
}

} // namespace TARN::ThemeTool
