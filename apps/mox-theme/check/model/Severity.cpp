#include "check/model/Severity.h"

#include "text/Literals.h"

namespace TARN::ThemeTool {

template <>
const QVector<Keyword<Severity>> &keywords<Severity>()
{
    static const QVector<Keyword<Severity>> list = {
        {"off"_s, Severity::Off}, {"warn"_s, Severity::Warning}, {"error"_s, Severity::Error}};
    return list;
}

} // namespace TARN::ThemeTool
