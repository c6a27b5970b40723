#include "support/ComboBoxes.h"

#include <style/ComboBoxDefaultItemDelegate.h>

#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QComboBox>

#include <support/Text.h>

using TARN::ComboBoxDefaultItemDelegate;

QComboBox *makeComboBox(bool editable)
{
    auto *combo = new QComboBox;
    combo->addItems({text("First"), text("Middle"), text("Last")});
    ComboBoxDefaultItemDelegate::setSeparator(combo->model(), combo->model()->index(1, 0));
    combo->setEditable(editable);
    return combo;
}

ComboBoxDefaultItemDelegate *delegateOf(const QComboBox &combo)
{
    return qobject_cast<ComboBoxDefaultItemDelegate *>(combo.itemDelegate());
}

bool opens(QComboBox &combo)
{
    combo.showPopup();
    const bool isOpen = combo.view()->isVisible() && !combo.view()->grab().isNull();
    combo.hidePopup();
    return isOpen && !combo.grab().isNull();
}
