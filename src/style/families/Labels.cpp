#include "style/families/Labels.h"

#include "catalogue/Names.h"
#include "style/polishing/Polishing.h"

#include <QtWidgets/QWidget>

namespace TARN::Labels {

void polishDisabledText(Polishing &polishing)
{
    QWidget &widget = polishing.widget();
    QPalette palette = widget.palette();
    palette.setBrush(QPalette::Disabled, QPalette::WindowText,
                     themeBrush(BrushName::ForegroundBrush, false));
    widget.setPalette(palette);
}

} // namespace TARN::Labels
