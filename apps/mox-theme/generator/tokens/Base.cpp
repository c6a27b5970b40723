#include "generator/tokens/Base.h"

#include "text/Literals.h"

namespace TARN::ThemeTool {

template <>
const QVector<Keyword<Base>> &keywords<Base>()
{
    static const QVector<Keyword<Base>> list = {
        {"dark"_s, Base::Dark}, {"light"_s, Base::Light}, {"high-contrast"_s, Base::HighContrast}};
    return list;
}

} // namespace TARN::ThemeTool
