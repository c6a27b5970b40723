#include "check/reports/ReportFormat.h"

#include "text/Literals.h"

namespace TARN::ThemeTool {

template <>
const QVector<Keyword<ReportFormat>> &keywords<ReportFormat>()
{
    static const QVector<Keyword<ReportFormat>> list = {{"text"_s, ReportFormat::Text},
                                                        {"json"_s, ReportFormat::Json},
                                                        {"sarif"_s, ReportFormat::Sarif},
                                                        {"github"_s, ReportFormat::Github}};
    return list;
}

} // namespace TARN::ThemeTool
