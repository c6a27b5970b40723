#pragma once

#include "compare/ThemeValues.h"

#include <optional>

namespace TARN::ThemeTool {

enum class ChangeKind { Removed, Added, Changed };

/// One thing that two themes say differently.
struct Change
{
    ChangeKind kind = ChangeKind::Changed;
    QString name;
    QStringList groups; ///< those of the palette in which it is so
    ThemeValue before;
    ThemeValue after;
    /// How far colours look apart; none for what is no colour or is in one theme only.
    std::optional<double> distance;
    int brushes = 0;        ///< how many brushes look different only because of it
    int paletteEntries = 0; ///< the same of the palette, in which each group counts
};

struct ChangeSection
{
    QString key;
    QString title;
    /// What was removed, what was added, then what changed, the largest change first.
    QVector<Change> changes;
};

/// A contrast that meets its demand in one theme only.
struct ContrastChange
{
    QString text;    ///< the variable that is read
    QString surface; ///< the variable on which it is seen
    double before = 0;
    double after = 0;
    double demand = 0;
    int others = 0; ///< how many further pairs have the same colours

    bool fell() const { return after < before; }
};

/// What two themes say differently.
struct Differences
{
    QVector<ChangeSection> sections; ///< those in which something changed
    QVector<ContrastChange> contrasts;
};

/// Compares the theme \a before with the theme \a after. A value that says the same in both is no
/// change, even if it looks different because another value, to which it refers, has changed.
Differences differences(const ThemeValues &before, const ThemeValues &after);

/// Returns the contrasts that met their demand before and do not after, or the reverse, the largest
/// step first.
QVector<ContrastChange> contrastChanges(const ThemeValues &before, const ThemeValues &after);

} // namespace TARN::ThemeTool
