#pragma once

#include "theme/following/OpenMenus.h"
#include "theme/following/PlainColors.h"
#include "theme/following/SceneTexts.h"
#include "theme/following/SubWindows.h"

#include <QtGui/QBrush>

namespace TARN {

/// What shows something of a theme and does not follow the next one by itself.
class Followers
{
public:
    /// Remembers what shows something of the theme in force.
    Followers();

    /// Has all of it show the theme that is in force now. To be called when that has been applied;
    /// \a styleIsNew tells whether it has a style of its own.
    void follow(bool styleIsNew) const;

private:
    QBrush m_formerLink;
    PlainColors m_colors;
    SceneTexts m_sceneTexts;
    SubWindows m_subWindows;
    OpenMenus m_menus;
};

} // namespace TARN
