#include "check/model/PaletteMapping.h"

namespace TARN::ThemeTool {

QString MappingEntry::reference() const
{
    return text.startsWith(u'@') ? text.mid(1) : QString();
}

} // namespace TARN::ThemeTool
