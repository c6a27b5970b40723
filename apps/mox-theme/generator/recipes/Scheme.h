#pragma once

#include "color/Tones.h"
#include "generator/recipes/BaseTones.h"
#include "generator/tokens/Tokens.h"

#include <QtCore/QHash>
#include <QtCore/QSet>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <functional>

namespace TARN::ThemeTool {

class Scheme;

/// How one colour of a theme comes about, and the one that takes its place while a widget is
/// disabled.
struct ColorRecipe
{
    QString name;
    QString heading; ///< what the colours of its section have in common
    std::function<QColor(const Scheme &)> value;
    std::function<QColor(const Scheme &, const QColor &)> disabled;
};

/// The colours of a theme. Each is computed when it is first asked for, from others or from the
/// seeds, unless the tokens set it.
class Scheme
{
public:
    explicit Scheme(const Tokens &tokens);

    const BaseTones &tones() const { return m_tones; }
    QColor accent() const { return m_tokens.accent; }

    /// Returns the colour variable \a name; that of a disabled twin for \a name + "Disabled". An
    /// invalid colour when there is no such variable, or when it is being computed: see circle().
    QColor color(const QString &name) const;
    QColor operator[](const char *name) const { return color(QString::fromLatin1(name)); }

    /// Returns the neutral colour of a \a lightness.
    QColor neutral(double lightness) const;

    /// Returns what a text or graphic on \a surfaces, colour variables separated by spaces, is to
    /// meet; on their disabled twins unless \a enabled.
    QVector<ContrastDemand> demands(const char *surfaces, double ratio, bool enabled = true) const;

    /// Returns the colours that were asked for while they were being computed; the last depends on
    /// the first. Empty when there are none.
    const QStringList &circle() const { return m_circle; }

private:
    QColor compute(const QString &name) const;
    QColor overridden(const QString &value) const;

    const Tokens &m_tokens;
    const BaseTones &m_tones;
    Oklch m_neutral;
    mutable QHash<QString, QColor> m_colors;
    mutable QStringList m_underWay;
    mutable QStringList m_circle;
};

/// Returns the recipes of all colours, in the order in which a theme lists them.
const QVector<ColorRecipe> &colorRecipes();

/// Returns the recipe of the colour \a name; null when there is none.
const ColorRecipe *findColorRecipe(const QString &name);

} // namespace TARN::ThemeTool
