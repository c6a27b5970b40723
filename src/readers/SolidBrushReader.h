#pragma once

#include <readers/BrushReader.h>

/// Reads an element "SolidBrush", whose text is the name of a colour.
class MOX_COMMON_THEME_EXPORT SolidBrushReader : public BrushReader
{
public:
    QBrush readBrush(const QDomElement &element, const QMap<QString, QColor> &colors,
                     bool &ok) const override;
};
