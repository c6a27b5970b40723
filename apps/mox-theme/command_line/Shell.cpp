#include "command_line/Shell.h"

#include "text/Literals.h"

namespace TARN::ThemeTool {

template <>
const QVector<Keyword<Shell>> &keywords<Shell>()
{
    static const QVector<Keyword<Shell>> list = {
        {"bash"_s, Shell::Bash}, {"zsh"_s, Shell::Zsh}, {"fish"_s, Shell::Fish}};
    return list;
}

} // namespace TARN::ThemeTool
