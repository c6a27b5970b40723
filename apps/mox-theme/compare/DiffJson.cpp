#include "compare/DiffReports.h"
#include "compare/VisibleDistance.h"
#include "text/Literals.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <cmath>

namespace TARN::ThemeTool::DiffReports {

namespace {

/// Counts up when a member is renamed or removed, or means something else; not when one is added.
constexpr int formatVersion = 1;

/// What is computed is not exact to the last bit, and a report is compared with another one.
double rounded(double number)
{
    return std::round(number * 1000) / 1000;
}

QString word(ChangeKind kind)
{
    switch (kind) {
    case ChangeKind::Removed:
        return "removed"_s;
    case ChangeKind::Added:
        return "added"_s;
    case ChangeKind::Changed:
        break;
    }
    return "changed"_s;
}

QJsonObject object(const QString &section, const Change &change)
{
    const auto textUnless = [&change](ChangeKind kind, const ThemeValue &value) {
        return change.kind == kind ? QJsonValue() : QJsonValue(value.text);
    };
    QJsonObject object{{"section"_s, section},
                       {"kind"_s, word(change.kind)},
                       {"name"_s, change.name},
                       {"groups"_s, QJsonArray::fromStringList(change.groups)},
                       {"before"_s, textUnless(ChangeKind::Added, change.before)},
                       {"after"_s, textUnless(ChangeKind::Removed, change.after)},
                       {"distance"_s, QJsonValue()},
                       {"visibility"_s, QJsonValue()},
                       {"brushesFollowing"_s, change.brushes},
                       {"paletteEntriesFollowing"_s, change.paletteEntries}};
    if (change.distance) {
        object["distance"_s] = rounded(*change.distance);
        object["visibility"_s] = word(visibility(*change.distance));
    }
    return object;
}

QJsonObject object(const ContrastChange &change)
{
    return {{"text"_s, change.text},
            {"surface"_s, change.surface},
            {"before"_s, rounded(change.before)},
            {"after"_s, rounded(change.after)},
            {"demand"_s, change.demand},
            {"alike"_s, change.others}};
}

} // namespace

QString json(const Differences &differences, const QString &before, const QString &after)
{
    QJsonArray changes;
    for (const ChangeSection &section : differences.sections) {
        for (const Change &change : section.changes) {
            changes.append(object(section.key, change));
        }
    }
    QJsonArray contrasts;
    for (const ContrastChange &change : differences.contrasts) {
        contrasts.append(object(change));
    }
    const QJsonObject report{{"version"_s, formatVersion},
                             {"before"_s, before},
                             {"after"_s, after},
                             {"changes"_s, changes},
                             {"contrasts"_s, contrasts}};
    return QString::fromUtf8(QJsonDocument(report).toJson());
}

} // namespace TARN::ThemeTool::DiffReports
