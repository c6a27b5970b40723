#pragma once

#include <QtGui/QBrush>

namespace TARN {

/// What a button is painted with. A brush of Qt::NoBrush means that none was chosen.
struct ButtonBrushes
{
    QBrush background{Qt::NoBrush}; ///< fills the button's face
    QBrush border{Qt::NoBrush};     ///< draws the line around the face
    QBrush foreground{Qt::NoBrush}; ///< draws the text and tints the icon
};

} // namespace TARN
