#include "readers/SolidBrushReader.h"

#include "readers/ElementText.h"

#include <QtXml/QDomElement>

QBrush SolidBrushReader::readBrush(const QDomElement &element, const QMap<QString, QColor> &colors,
                                   bool &ok) const
{
    const QColor color = colors.value(TARN::elementText(element));
    ok = color.isValid();
    return {color, Qt::SolidPattern};
}
