#pragma once

#include "generator/tokens/Base.h"

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVector>
#include <QtGui/QColor>

#include <array>

namespace TARN::ThemeTool {

/// The fonts of a theme.
struct FontTokens
{
    QString family = QStringLiteral("Open Sans");
    QString weight = QStringLiteral("Normal");
    std::array<int, 4> sizes{8, 9, 10, 12}; ///< small, base, medium, large; in points
    QStringList
        files; ///< font files to ship with the theme; none are needed for the tool's own font
};

/// A place in a token file.
struct TokenPlace
{
    int line = 0; ///< from 1; 0: the whole file
    int column = 0;
};

/// A problem of a token file.
struct TokenProblem : TokenPlace
{
    QString text; ///< empty: there is no problem
};

/// What a theme is made from: a few seeds and whatever an author wants to be otherwise.
struct Tokens
{
    QString name; ///< the display name and the name of the theme's folder
    Base base = Base::Dark;
    QColor accent;
    QColor neutral; ///< hue and chroma of the surfaces; invalid: the accent's hue, nearly grey

    FontTokens font;
    QString images; ///< a folder of images to lay over the theme's own ones; empty: none
    std::array<int, 4> cornerRadii{2, 3, 4, 6}; ///< small, base, medium, large; in pixels
    double rubberBandOpacity = 0.25;

    /// Colours that are not to be computed: the name of a colour variable to a colour, or to the
    /// name of another colour variable.
    QMap<QString, QString> colors;
    /// Brushes that are not to follow the recipe: the name of a brush variable, in which "*"
    /// stands for any text, to the name of a colour variable or to a colour. In the order in which
    /// they are written; the last that fits a name counts.
    QVector<QPair<QString, QString>> brushes;

    /// Where a token file has the entries of "colors" and "brushes", by their name.
    QMap<QString, TokenPlace> places;
};

/// Reads the token file at \a path, which is TOML, into \a tokens. Stops at the first problem.
TokenProblem readTokens(const QString &path, Tokens &tokens);

/// Returns a token file of the seeds in \a tokens, with comments that lead an author on.
QString tokenFile(const Tokens &tokens);

} // namespace TARN::ThemeTool
