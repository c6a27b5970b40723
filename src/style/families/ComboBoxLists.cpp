#include "style/families/ComboBoxLists.h"

#include "catalogue/Names.h"
#include "style/ComboBoxDefaultItemDelegate.h"
#include "style/asking/Classes.h"
#include "style/asking/OptionState.h"
#include "style/drawing/Lines.h"
#include "style/families/Inputs.h"
#include "style/polishing/Polishing.h"

#include <QtCore/QPointer>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QComboBox>

namespace TARN::ComboBoxes {

namespace {

/// Returns the combo box that opens \a view, if one does.
QComboBox *comboBoxOf(const QWidget &view)
{
    const QWidget *container = view.parentWidget();
    return isA(container, "QComboBoxPrivateContainer")
               ? qobject_cast<QComboBox *>(container->parentWidget())
               : nullptr;
}

bool hasToolkitsDelegate(const QAbstractItemView &view)
{
    return isA(view.itemDelegate(), "QComboBoxDelegate") ||
           isA(view.itemDelegate(), "QComboMenuDelegate");
}

} // namespace

void polishList(Polishing &polishing)
{
    auto &view = static_cast<QAbstractItemView &>(polishing.widget());
    QComboBox *comboBox = comboBoxOf(view);
    if (!comboBox || !hasToolkitsDelegate(view)) {
        return;
    }
    const QPointer<QAbstractItemDelegate> former = view.itemDelegate();
    const QPointer<QAbstractItemDelegate> own = new ComboBoxDefaultItemDelegate(&view, comboBox);
    // Given by way of the combo box it would be the former one's end.
    view.setItemDelegate(own);
    polishing.addUndo([&view, former, own] {
        if (former && own && view.itemDelegate() == own) {
            view.setItemDelegate(former);
            delete own;
        }
    });
}

bool drawListFrame(const PaintRequest &request)
{
    if (!isA(request.widget, "QComboBoxPrivateContainer")) {
        return Inputs::drawFrame(request);
    }
    fillFrame(*request.painter, request.option->rect,
              themeBrush(BrushName::BackgroundSubLevel1Brush, isEnabled(*request.option)));
    return true;
}

void polishListOf(const QComboBox &comboBox)
{
    comboBox.view()->ensurePolished();
}

} // namespace TARN::ComboBoxes
