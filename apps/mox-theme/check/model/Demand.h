#pragma once

#include "check/model/Configuration.h"

#include <catalogue/Catalogue.h>

#include <QtCore/QVector>

namespace TARN::ThemeTool {

/// What a theme is asked for: the variables of the catalogue, and those of the kinds of buttons and
/// inputs that the theme adds, each of them with all that a kind consists of.
class Demand
{
public:
    explicit Demand(const Configuration &configuration);

    const QVector<Variable> &variables() const { return m_variables; }

    /// Tells whether \a name of \a group is asked for, as a variable or as a disabled twin.
    bool asksFor(const QString &group, const QString &name) const;

    /// Tells whether the disabled twin of the variable \a name is asked for.
    bool hasTwin(const QString &name) const;

private:
    void addOwnKinds(const QStringList &brushes);
    void addKind(const QString &stem, const QString &kind);

    QVector<Variable> m_variables;
    QSet<QString> m_asked; ///< by group and name
    QSet<QString> m_twins;
};

/// Returns the path of the variable \a name of \a group, as placeholders name it.
QString variablePath(const QString &group, const QString &name);

} // namespace TARN::ThemeTool
