#pragma once

#include "color/Tones.h"

#include <QtCore/QMultiHash>
#include <QtCore/QSet>
#include <QtCore/QString>

namespace TARN::ThemeTool {

struct ThemeDefinition;

/// Which colours of a theme are seen on which others.
class SeenColors
{
public:
    explicit SeenColors(const ThemeDefinition &definition);

    /// Returns the value of the colour variable \a name; invalid when there is none.
    QColor color(const QString &name) const { return m_colors.value(name); }

    /// Returns what the colour variable \a name has to meet, on what it is seen on and beneath
    /// what is seen on it.
    QVector<ContrastDemand> demandsOn(const QString &name) const;

    /// Returns the names of the colour variables on which the colour variable \a name is seen.
    QSet<QString> groundsOf(const QString &name) const;

    /// Returns the names of the colour variables that are not told apart as they should be.
    QSet<QString> illegible() const;

private:
    struct Pair
    {
        QString above;
        QString ground;
        double ratio;
    };

    void readDefinition(const ThemeDefinition &definition);
    void addPairs(const QString &above, const QStringList &surfaces, double ratio);
    QColor opaque(const QString &name) const;

    QHash<QString, QColor> m_colors;
    /// From a brush, a colour or "palette/<role>" to the colour variables that it shows.
    QMultiHash<QString, QString> m_shown;
    QVector<Pair> m_pairs;
};

} // namespace TARN::ThemeTool
