#pragma once

#include "generator/tokens/Tokens.h"

#include <QtCore/QVector>

namespace TARN::ThemeTool {

/// A run of entries of a theme file under one heading.
template <typename Entry>
struct Section
{
    QString heading; ///< one sentence or two, written as a comment above the entries
    QVector<Entry> entries;
};

struct ColorEntry
{
    QString name;
    QColor color;
};

struct BrushEntry
{
    QString name;
    QString color; ///< the name of a colour entry
};

struct PaletteEntry
{
    QString role;  ///< a key of QPalette::ColorRole
    QString group; ///< a key of QPalette::ColorGroup
    QString color; ///< the name of a colour entry
};

/// Every value of a theme, ready to be written. Entries stand in the order of the file; each name
/// is there once.
struct ThemeDefinition
{
    QString name;
    QString description; ///< what the theme looks like, in a sentence
    QVector<Section<ColorEntry>> colors;
    QVector<Section<BrushEntry>> brushes;
    QVector<Section<PaletteEntry>> palette;
    QVector<QPair<QString, int>> factors; ///< in percent
    QVector<QPair<QString, double>> opacities;
    FontTokens font;
    QString images; ///< a folder of images to lay over the tool's; empty: none
    std::array<int, 4> cornerRadii;
    bool darkIcons = false; ///< icons that are shown as they are drawn are dark
};

/// Computes every value from \a tokens, which are sound. Text is legible wherever the tokens do not
/// set its colour or that of its background themselves.
ThemeDefinition defineTheme(const Tokens &tokens);

/// Returns what is wrong with the overrides in \a tokens: a name that is no variable, a colour that
/// is none, colours that refer to each other in a circle. Its text is empty when nothing is.
TokenProblem overrideProblem(const Tokens &tokens);

} // namespace TARN::ThemeTool
