#pragma once

#include <QtCore/QPointer>
#include <QtCore/QVector>
#include <QtWidgets/QAction>

class QMenuBar;

namespace TARN {

/// The menus of menu bars that are open. A menu bar that measures its entries anew, for a style or
/// for a font, forgets which of them is open.
class OpenMenus
{
public:
    /// Remembers them. To be made before the style or the font changes.
    OpenMenus();

    /// Reminds the menu bars of them, without a word to the application: for it they have been open
    /// all the time.
    void follow() const;

private:
    struct Path
    {
        QPointer<QMenuBar> bar;
        QVector<QPointer<QAction>> actions; ///< each but the last opens the menu with the next one
    };

    QVector<Path> m_paths;
};

} // namespace TARN
