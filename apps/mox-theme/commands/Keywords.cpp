#include "commands/Keywords.h"

#include "text/Literals.h"

namespace TARN::ThemeTool {

template <>
const QVector<Keyword<Base>> &keywords<Base>()
{
    static const QVector<Keyword<Base>> list = {
        {"dark"_s, Base::Dark}, {"light"_s, Base::Light}, {"high-contrast"_s, Base::HighContrast}};
    return list;
}

template <>
const QVector<Keyword<ReportFormat>> &keywords<ReportFormat>()
{
    static const QVector<Keyword<ReportFormat>> list = {{"text"_s, ReportFormat::Text},
                                                        {"json"_s, ReportFormat::Json},
                                                        {"sarif"_s, ReportFormat::Sarif},
                                                        {"github"_s, ReportFormat::Github}};
    return list;
}

template <>
const QVector<Keyword<Severity>> &keywords<Severity>()
{
    static const QVector<Keyword<Severity>> list = {
        {"off"_s, Severity::Off}, {"warn"_s, Severity::Warning}, {"error"_s, Severity::Error}};
    return list;
}

template <>
const QVector<Keyword<Shell>> &keywords<Shell>()
{
    static const QVector<Keyword<Shell>> list = {
        {"bash"_s, Shell::Bash}, {"zsh"_s, Shell::Zsh}, {"fish"_s, Shell::Fish}};
    return list;
}

} // namespace TARN::ThemeTool
