#include "theme/following/Followers.h"

#include "theme/following/DocumentLinks.h"
#include "theme/following/FetchedIcons.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QPalette>

namespace TARN {

Followers::Followers()
    : m_formerLink(QGuiApplication::palette().link())
{
}

void Followers::follow(bool styleIsNew) const
{
    m_colors.follow();
    m_sceneTexts.follow();
    fitCloseButtons();
    fetchIconsOfTurned();
    if (!styleIsNew) {
        fetchIcons();
    }
    repaintDocumentLinks(m_formerLink, QGuiApplication::palette().link());
    m_subWindows.follow();
    m_menus.follow();
}

} // namespace TARN
