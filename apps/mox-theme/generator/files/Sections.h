#pragma once

#include "generator/files/XmlLayout.h"
#include "generator/recipes/ThemeDefinition.h"

namespace TARN::ThemeTool {

/// Writes \a sections, an empty line between them, each with its heading and then what
/// \a writeEntries writes of its entries.
template <typename Entry, typename WriteEntries>
void writeSections(XmlLayout &xml, const QVector<Section<Entry>> &sections,
                   WriteEntries writeEntries)
{
    for (int i = 0; i < sections.size(); ++i) {
        if (i > 0) {
            xml.gap();
        }
        xml.comment(sections.at(i).heading);
        writeEntries(sections.at(i).entries);
    }
}

} // namespace TARN::ThemeTool
