#pragma once

#include <QtCore/QVector>
#include <QtWidgets/QMainWindow>

class QLabel;
class QScrollArea;
class QStackedWidget;
class QToolButton;

namespace TARN {
class ThemeQApplication;
}

namespace TARN::Gallery {

class PageList;
class ThemeMenu;

/// The gallery's window: the list of pages beside the current page.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// Creates the window for \a application, to which the theme \a themeName has been applied.
    MainWindow(ThemeQApplication &application, const QString &themeName);

    /// Shows the page at \a index of the page table.
    void showPage(int index);

    /// Names \a name as the theme, and offers no other: for an application whose theme comes from
    /// somewhere else than the repository.
    void showFixedTheme(const QString &name);

    /// Has each page be made anew whenever it comes to be shown, so that the page that is shown is
    /// the only one that a change of the theme has to reach.
    void keepOnlyCurrentPage();

private:
    void createMenus();
    void createToolBar();
    QAction *addWindowAction(const QString &icon, const QString &text,
                             const QKeySequence &shortcut);

    void displayPage(int index);
    QScrollArea *createPageView(int index);
    void dropHiddenPages();
    void switchTheme(const QString &name);
    void displayTheme(const QString &name);
    void setRightToLeft(bool rightToLeft);
    void setPagesDisabled(bool disabled);
    void showAbout();

    ThemeQApplication &m_application;
    QString m_themeName;

    PageList *m_list;
    QLabel *m_title;
    QStackedWidget *m_stack;
    QVector<QScrollArea *> m_pageViews; // null until a page is first shown, or when it was dropped
    bool m_keepsHiddenPages = true;

    ThemeMenu *m_themeMenu;
    QToolButton *m_themeButton;
    QAction *m_themeButtonAction = nullptr; // shows and hides the button in the tool bar
    QLabel *m_themeLabel;
    QAction *m_previous = nullptr;
    QAction *m_next = nullptr;
    QAction *m_rightToLeft = nullptr;
    QAction *m_disabled = nullptr;
};

} // namespace TARN::Gallery
