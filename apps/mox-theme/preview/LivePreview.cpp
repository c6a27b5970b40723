#include "preview/LivePreview.h"

#include "preview/FindingsPanel.h"
#include "preview/ThemeSession.h"
#include "text/Literals.h"

#include <theme/ThemeQApplication.h>

#include <QtGui/QScreen>
#include <QtWidgets/QDockWidget>

#include <MainWindow.h>
#include <utility>

namespace TARN::ThemeTool {

namespace {

constexpr int DockWidth = 400;

} // namespace

LivePreview::LivePreview(ThemeQApplication &application, ThemeSession &session, Check check)
    : m_session(session)
    , m_check(std::move(check))
    , m_watcher(session.directory())
    , m_window(std::make_unique<Gallery::MainWindow>(application, session.themeName()))
    , m_panel(new FindingsPanel)
{
    m_window->keepOnlyCurrentPage();
    auto *dock = new QDockWidget("Findings"_s, m_window.get());
    dock->setObjectName("findings"_s);
    dock->setWidget(m_panel);
    m_window->addDockWidget(Qt::RightDockWidgetArea, dock);
    m_window->resize(
        (m_window->size() + QSize(DockWidth, 0)).boundedTo(m_window->screen()->availableSize()));
    m_window->resizeDocks({dock}, {DockWidth}, Qt::Horizontal);

    m_checkTimer.setSingleShot(true);
    m_checkTimer.setInterval(0);
    connect(&m_checkTimer, &QTimer::timeout, this, &LivePreview::showFindings);
    connect(&m_watcher, &ThemeFolderWatcher::themeSaved, this, &LivePreview::reapply);
    showTheme();
    showFindings();
}

LivePreview::~LivePreview() = default;

QMainWindow &LivePreview::window()
{
    return *m_window;
}

void LivePreview::reapply()
{
    m_session.apply();
    showTheme();
    // The check waits until the theme is on the screen.
    m_checkTimer.start();
}

void LivePreview::showTheme()
{
    const QString name = m_session.themeName();
    m_window->showFixedTheme(name);
    m_window->setWindowTitle(name + " – theme preview"_s);
    m_panel->setProblem(m_session.problem());
}

void LivePreview::showFindings()
{
    m_panel->setFindings(m_check(m_session.directory()), m_session.directory());
}

} // namespace TARN::ThemeTool
