#include "compare/DiffReports.h"
#include "compare/VisibleDistance.h"
#include "text/Wording.h"

#include <QtCore/QMap>

namespace TARN::ThemeTool::DiffReports {

namespace {

Ink ink(Visibility visibility)
{
    switch (visibility) {
    case Visibility::Invisible:
        return Ink::Faint;
    case Visibility::Slight:
        return Ink::Plain;
    case Visibility::Clear:
        return Ink::Yellow;
    case Visibility::Strong:
        break;
    }
    return Ink::Red;
}

QString decimals(double number)
{
    return QString::number(number, 'f', 2);
}

QString mark(ChangeKind kind, const Inks &inks)
{
    switch (kind) {
    case ChangeKind::Removed:
        return inks.inked("-"_s, Ink::Red);
    case ChangeKind::Added:
        return inks.inked("+"_s, Ink::Green);
    case ChangeKind::Changed:
        break;
    }
    return inks.inked("~"_s, Ink::Yellow);
}

QString shown(const ThemeValue &value, const Inks &inks)
{
    // The single colour of a gradient is none that is painted.
    const bool isPlain = value.brush.style() == Qt::SolidPattern;
    return (isPlain ? inks.swatch(value.brush.color()) : QString()) + onOneLine(value.text);
}

QString values(const Change &change, const Inks &inks)
{
    switch (change.kind) {
    case ChangeKind::Removed:
        return shown(change.before, inks);
    case ChangeKind::Added:
        return shown(change.after, inks);
    case ChangeKind::Changed:
        break;
    }
    return shown(change.before, inks) + " -> "_s + shown(change.after, inks);
}

/// Returns what follows a change: "12 brushes and 1 palette entry follow".
QString following(const Change &change)
{
    QStringList followers;
    if (change.brushes > 0) {
        followers.append(counted(change.brushes, "brush"_s, "brushes"_s));
    }
    if (change.paletteEntries > 0) {
        followers.append(counted(change.paletteEntries, "palette entry"_s, "palette entries"_s));
    }
    const bool isOne = change.brushes + change.paletteEntries == 1;
    return followers.join(" and "_s) + (isOne ? " follows"_s : " follow"_s);
}

QString line(const Change &change, int nameWidth, const Inks &inks)
{
    QStringList parts{values(change, inks)};
    if (change.distance) {
        const Visibility seen = visibility(*change.distance);
        parts.append(inks.inked(word(seen), ink(seen)) + " ("_s + decimals(*change.distance) +
                     ")"_s);
    }
    if (change.brushes + change.paletteEntries > 0) {
        parts.append(following(change));
    }
    // Three groups are all that there are.
    if (!change.groups.isEmpty() && change.groups.size() < 3) {
        parts.append("in "_s + change.groups.join(" and "_s));
    }
    const QString name = inks.inked(onOneLine(change.name).leftJustified(nameWidth), Ink::Bold);
    return "  "_s + mark(change.kind, inks) + " "_s + name + "  "_s + parts.join(", "_s) + "\n"_s;
}

QString section(const ChangeSection &section, const Inks &inks)
{
    int nameWidth = 0;
    for (const Change &change : section.changes) {
        nameWidth = qMax(nameWidth, onOneLine(change.name).size());
    }
    QString text = inks.inked(section.title, Ink::Bold) + "\n"_s;
    for (const Change &change : section.changes) {
        text += line(change, nameWidth, inks);
    }
    return text + "\n"_s;
}

QString line(const ContrastChange &change, const Inks &inks)
{
    QString what = "  "_s + mark(ChangeKind::Changed, inks) + " "_s +
                   inks.inked(change.text, Ink::Bold) + " on "_s +
                   inks.inked(change.surface, Ink::Bold) + "  "_s + decimals(change.before) +
                   " -> "_s + decimals(change.after) + ", "_s;
    what += change.fell() ? inks.inked("fell below"_s, Ink::Red)
                          : inks.inked("now meets"_s, Ink::Green);
    what += " "_s + QString::number(change.demand);
    if (change.others > 0) {
        what += ", as on "_s + counted(change.others, "other pair"_s, "other pairs"_s) +
                " of the same colours"_s;
    }
    return what + "\n"_s;
}

/// Returns how many changes there are, and how many colours changed how visibly.
QString summary(const Differences &differences)
{
    int count = 0;
    QMap<Visibility, int> seen;
    for (const ChangeSection &section : differences.sections) {
        count += section.changes.size();
        for (const Change &change : section.changes) {
            if (change.distance) {
                ++seen[visibility(*change.distance)];
            }
        }
    }
    if (count == 0) {
        return "No differences\n"_s;
    }
    QStringList counts;
    for (const auto visibility :
         {Visibility::Strong, Visibility::Clear, Visibility::Slight, Visibility::Invisible}) {
        if (seen.contains(visibility)) {
            counts.append(QString::number(seen[visibility]) + " "_s + word(visibility));
        }
    }
    const QString looks =
        counts.isEmpty() ? QString() : "; changes of colour: "_s + counts.join(", "_s);
    return counted(count, "difference"_s, "differences"_s) + looks + "\n"_s;
}

} // namespace

QString text(const Differences &differences, const Inks &inks)
{
    QString text;
    for (const ChangeSection &changed : differences.sections) {
        text += section(changed, inks);
    }
    if (!differences.contrasts.isEmpty()) {
        text += inks.inked("Contrast"_s, Ink::Bold) + "\n"_s;
        for (const ContrastChange &change : differences.contrasts) {
            text += line(change, inks);
        }
        text += "\n"_s;
    }
    return text + summary(differences);
}

} // namespace TARN::ThemeTool::DiffReports
