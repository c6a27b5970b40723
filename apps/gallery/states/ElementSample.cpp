#include "states/ElementSample.h"

#include "states/Families.h"

namespace TARN::Gallery {

const QVector<StyleElement> &rowsOf(ElementTable table)
{
    switch (table) {
    case ElementTable::Primitives:
        return Catalogue::primitives();
    case ElementTable::Controls:
        return Catalogue::controls();
    case ElementTable::ComplexControls:
        break;
    }
    return Catalogue::complexControls();
}

QString elementName(const ElementId &id)
{
    return QString::fromLatin1(rowsOf(id.table).at(id.element).name);
}

const QVector<ElementFamily> &elementFamilies()
{
    static const QVector<ElementFamily> families = {
        buttonFamily(),      toolButtonFamily(), checkBoxFamily(),     inputFamily(),
        comboBoxFamily(),    spinBoxFamily(),    sliderFamily(),       scrollBarFamily(),
        progressBarFamily(), tabFamily(),        toolBoxFamily(),      menuFamily(),
        itemViewFamily(),    headerFamily(),     toolBarFamily(),      windowFamily(),
        cardFamily(),        frameFamily(),      tipAndStatusFamily(),
    };
    return families;
}

} // namespace TARN::Gallery
