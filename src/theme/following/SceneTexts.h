#pragma once

#include <QtGui/QBrush>
#include <QtGui/QColor>
#include <QtGui/QFont>

class QGraphicsItem;

namespace TARN {

/// The texts of graphics scenes that have the application's font or colours of its palette: an item
/// takes them when it is made, and a scene hands what is new to widgets only.
class SceneTexts
{
public:
    /// Remembers what texts have now. To be made before the palette and the font change.
    SceneTexts();

    /// Gives the texts of the scenes that are viewed what is in force now, in place of what they
    /// had then. What the application chose for a text stays.
    void follow() const;

private:
    void follow(QGraphicsItem &item) const;

    QFont m_formerFont;
    QColor m_formerColor;
    QBrush m_formerLink;
};

} // namespace TARN
