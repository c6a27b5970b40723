#pragma once

#include <QtGui/QImage>
#include <QtWidgets/QMainWindow>

class QFontComboBox;
class QGraphicsScene;
class QMdiArea;

/// A window in use: with a menu that is open, sub-windows, a message, a scene and a chosen font.
class OpenWidgets
{
public:
    OpenWidgets();

    QMenu &menu() { return *m_menu; }
    QMenuBar &menuBar() { return *m_window.menuBar(); }
    QFontComboBox &fonts() { return *m_fonts; }
    QMdiArea &subWindows() { return *m_subWindows; }

    /// Returns how the window and, beside it, the open menu look.
    QImage render();

private:
    QWidget *scene();
    QWidget *subWindowArea();

    QMainWindow m_window;
    QMenu *m_menu;
    QFontComboBox *m_fonts;
    QMdiArea *m_subWindows;
};
