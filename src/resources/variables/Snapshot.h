#pragma once

#include "resources/variables/GroupNames.h"

#include <QtCore/QHash>
#include <QtCore/QVariant>
#include <QtGui/QBrush>
#include <QtGui/QColor>
#include <QtGui/QFont>

#include <vector>

namespace TARN {

/// One group of theme variables as it was published, by names: what could be converted to T, in
/// one array.
template <typename T>
class VariableGroup
{
public:
    explicit VariableGroup(const QVariantMap &variables)
    {
        m_ids.reserve(variables.size());
        m_values.reserve(std::size_t(variables.size()));
        for (auto it = variables.cbegin(); it != variables.cend(); ++it) {
            if (it->template canConvert<T>()) {
                m_ids.insert(it.key(), m_values.size());
                m_values.push_back(it->template value<T>());
            }
        }
    }

    /// Returns the variable \a name; null when the group has none of this type.
    const T *find(const QString &name) const
    {
        const auto id = m_ids.constFind(name);
        return id == m_ids.constEnd() ? nullptr : &m_values[*id];
    }

private:
    QHash<QString, std::size_t> m_ids; ///< places in the array
    std::vector<T> m_values;
};

/// A kind of theme variable: what its values are, and where they are published.
template <typename T, const QString &(*Group)(), const char *Property = GroupNames::variables>
struct VariableKind
{
    using Value = T;

    static const QString &group() { return Group(); }
    static const char *property() { return Property; }
};

using ColorKind = VariableKind<QColor, GroupNames::colors>;
using BrushKind = VariableKind<QBrush, GroupNames::brushes>;
using FontKind = VariableKind<QFont, GroupNames::fonts>;
using OpacityKind = VariableKind<double, GroupNames::opacities>;
using CornerRadiusKind = VariableKind<double, GroupNames::cornerRadii>;
using DisabledFactorKind =
    VariableKind<int, GroupNames::disabledFactors, GroupNames::internalVariables>;

/// Returns the variable \a name of one of the kinds above from the snapshot of what is published;
/// null when there is none, and without an application object. The observer of look-ups is told.
///
/// The snapshot of each kind is taken on the first look-up of the kind in a ThemeGeneration. The
/// pointer is valid until the next generation starts.
template <typename Kind>
const typename Kind::Value *findVariable(const QString &name);

} // namespace TARN
