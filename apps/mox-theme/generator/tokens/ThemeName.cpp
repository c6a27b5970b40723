#include "generator/tokens/ThemeName.h"

#include "text/Literals.h"

#include <algorithm>

namespace TARN::ThemeTool {

QString themeNameProblem(const QString &name)
{
    if (name.trimmed().isEmpty()) {
        return "is empty"_s;
    }
    if (name.contains(u'/')) {
        return "contains '/', which a folder's name cannot"_s;
    }
    // Hidden folders are not listed as themes, and options begin with a dash.
    if (name.startsWith(u'.') || name.startsWith(u'-')) {
        return "begins with '"_s + name.at(0) + "', which a theme's folder must not"_s;
    }
    const auto isControl = [](QChar character) {
        return character.category() == QChar::Other_Control;
    };
    if (std::any_of(name.cbegin(), name.cend(), isControl)) {
        return "contains a control character"_s;
    }
    return {};
}

} // namespace TARN::ThemeTool
