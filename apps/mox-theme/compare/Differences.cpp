#include "compare/Differences.h"

#include "compare/VisibleDistance.h"
#include "text/Literals.h"

#include <algorithm>

namespace TARN::ThemeTool {

namespace {

using Values = QMap<QString, ThemeValue>;

/// Returns how many values of the section \a key say the same in both themes, and look different
/// because of \a source.
int followers(const QString &key, const QString &source, const ThemeValues &before,
              const ThemeValues &after)
{
    const auto isSection = [&key](const ThemeSection &section) { return section.key == key; };
    const auto *const section =
        std::find_if(before.sections.cbegin(), before.sections.cend(), isSection);
    if (section == before.sections.cend()) {
        return 0;
    }
    int count = 0;
    for (auto it = section->values.cbegin(); it != section->values.cend(); ++it) {
        const ThemeValue *now = after.find(key, it.key());
        const bool saysTheSame = now && now->text == it->text;
        if (saysTheSame && it->sources.contains(source) && now->sources.contains(source)) {
            ++count;
        }
    }
    return count;
}

std::optional<double> distance(const ThemeValue &before, const ThemeValue &after)
{
    if (before.brush.style() == Qt::NoBrush || after.brush.style() == Qt::NoBrush) {
        return std::nullopt;
    }
    return visibleDistance(before.brush, after.brush);
}

QVector<Change> changes(const Values &before, const Values &after)
{
    QVector<Change> changes;
    for (auto it = before.cbegin(); it != before.cend(); ++it) {
        Change change;
        change.name = it.key();
        change.before = *it;
        const auto now = after.constFind(it.key());
        if (now == after.cend()) {
            change.kind = ChangeKind::Removed;
        } else if (now->text != it->text) {
            change.after = *now;
            change.distance = distance(*it, *now);
        } else {
            continue;
        }
        changes.append(change);
    }
    for (auto it = after.cbegin(); it != after.cend(); ++it) {
        if (!before.contains(it.key())) {
            Change change;
            change.kind = ChangeKind::Added;
            change.name = it.key();
            change.after = *it;
            changes.append(change);
        }
    }
    return changes;
}

/// Returns the changes of palette entries with one for all groups of a role that change alike.
QVector<Change> joinedGroups(const QVector<Change> &entries)
{
    QVector<Change> joined;
    for (Change change : entries) {
        const QStringList roleAndGroup = change.name.split("/"_s);
        change.name = roleAndGroup.first();
        auto *const alike =
            std::find_if(joined.begin(), joined.end(), [&change](const Change &other) {
                return other.name == change.name && other.kind == change.kind &&
                       other.before.text == change.before.text &&
                       other.after.text == change.after.text && other.distance == change.distance;
            });
        if (alike != joined.end()) {
            alike->groups.append(roleAndGroup.last());
        } else {
            change.groups = QStringList(roleAndGroup.last());
            joined.append(change);
        }
    }
    return joined;
}

/// Returns how large \a change is among those of its section.
double size(const Change &change)
{
    return change.distance ? *change.distance : qAbs(change.after.number - change.before.number);
}

void sort(QVector<Change> &changes)
{
    std::stable_sort(changes.begin(), changes.end(), [](const Change &one, const Change &other) {
        if (one.kind != other.kind) {
            return one.kind < other.kind;
        }
        return one.kind == ChangeKind::Changed && size(one) > size(other);
    });
}

} // namespace

Differences differences(const ThemeValues &before, const ThemeValues &after)
{
    Differences differences;
    for (int i = 0; i < before.sections.size(); ++i) {
        const ThemeSection &section = before.sections[i];
        QVector<Change> changed = changes(section.values, after.sections[i].values);
        for (Change &change : changed) {
            const QString source = section.key + "/"_s + change.name;
            change.brushes = followers("brushes"_s, source, before, after);
            change.paletteEntries = followers("palette"_s, source, before, after);
        }
        if (section.key == "palette"_s) {
            changed = joinedGroups(changed);
        }
        if (!changed.isEmpty()) {
            sort(changed);
            differences.sections.append({section.key, section.title, changed});
        }
    }
    differences.contrasts = contrastChanges(before, after);
    return differences;
}

} // namespace TARN::ThemeTool
