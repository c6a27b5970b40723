#include "check/model/Demand.h"

#include "text/Literals.h"

#include <catalogue/Words.h>
#include <resources/ThemeResources.h>

#include <QtCore/QRegularExpression>
#include <QtCore/QStringBuilder>

#include <algorithm>

namespace TARN::ThemeTool {

namespace {

/// The words with which the composed names begin.
QStringList stems()
{
    return {Words::toggle + Words::button, Words::button, Words::input};
}

/// Matches composed names; captures the stem and the kind.
QRegularExpression composedName()
{
    QStringList fields;
    for (const QLatin1String field : Words::fields) {
        fields.append(field);
    }
    return QRegularExpression(R"(^(%1)(\w+?)(?:%2)(?:%3)Brush(?:%4)?$)"_s.arg(
        stems().join(u'|'), Catalogue::states().join(u'|'), fields.join(u'|'), Words::disabled));
}

} // namespace

QString variablePath(const QString &group, const QString &name)
{
    return group % u'/' % name;
}

Demand::Demand(const Configuration &configuration)
    : m_variables(Catalogue::variables())
{
    addOwnKinds(configuration.names(ThemeResources::getBrushesVarPrefix()));
    m_asked.reserve(2 * m_variables.size());
    for (const Variable &variable : qAsConst(m_variables)) {
        m_asked.insert(variablePath(variable.group, variable.name));
        if (variable.hasDisabledTwin) {
            m_asked.insert(variablePath(variable.group, variable.name + Words::disabled));
            m_twins.insert(variable.name);
        }
    }
}

bool Demand::asksFor(const QString &group, const QString &name) const
{
    return m_asked.contains(variablePath(group, name));
}

bool Demand::hasTwin(const QString &name) const
{
    return m_twins.contains(name);
}

void Demand::addOwnKinds(const QStringList &brushes)
{
    static const QRegularExpression pattern = composedName();
    const QStringList known = Catalogue::kinds();
    QSet<QString> added;
    for (const QString &name : brushes) {
        const QRegularExpressionMatch match = pattern.match(name);
        const QString kind = match.captured(2);
        if (kind.isEmpty() || known.contains(kind)) {
            continue;
        }
        const QString stem = match.captured(1);
        const QString key = stem + kind;
        if (!added.contains(key)) {
            added.insert(key);
            addKind(stem, kind);
        }
    }
}

/// Adds what the plain kind of the names that begin with \a stem consists of, under the names that
/// it has in \a kind.
void Demand::addKind(const QString &stem, const QString &kind)
{
    const QString brushes = ThemeResources::getBrushesVarPrefix();
    const auto ofKind = [&](QString name) { return name.insert(stem.size(), kind); };
    for (const QString &state : Catalogue::states()) {
        for (const QLatin1String field : Words::fields) {
            const Variable *plain = Catalogue::find(brushes, stem + state + field + "Brush"_s);
            if (!plain) {
                continue;
            }
            Variable variable = *plain;
            variable.name = ofKind(variable.name);
            std::transform(variable.surfaces.cbegin(), variable.surfaces.cend(),
                           variable.surfaces.begin(), ofKind);
            variable.family += " of the kind "_s + kind;
            m_variables.append(variable);
        }
    }
}

} // namespace TARN::ThemeTool
