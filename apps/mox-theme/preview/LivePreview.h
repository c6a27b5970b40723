#pragma once

#include "check/model/Finding.h"
#include "preview/ThemeFolderWatcher.h"

#include <QtCore/QObject>
#include <QtCore/QTimer>

#include <functional>
#include <memory>

class QMainWindow;

namespace TARN {
class ThemeQApplication;
}

namespace TARN::Gallery {
class MainWindow;
}

namespace TARN::ThemeTool {

class FindingsPanel;
class ThemeSession;

/// The gallery's window in the theme of a folder, with the theme's findings beside it. Both follow
/// what is saved in the folder.
class LivePreview : public QObject
{
    Q_OBJECT

public:
    /// Returns what is wrong with the theme in a folder.
    using Check = std::function<QVector<Finding>(const QString &directory)>;

    /// Creates the preview of \a session, which has applied its theme to \a application. Shows
    /// nothing yet.
    LivePreview(ThemeQApplication &application, ThemeSession &session, Check check);
    ~LivePreview() override;

    QMainWindow &window();

private:
    void reapply();
    void showTheme();
    void showFindings();

    ThemeSession &m_session;
    Check m_check;
    ThemeFolderWatcher m_watcher;
    QTimer m_checkTimer;
    std::unique_ptr<Gallery::MainWindow> m_window;
    FindingsPanel *m_panel; // the window's
};

} // namespace TARN::ThemeTool
