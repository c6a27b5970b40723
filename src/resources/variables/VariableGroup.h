#pragma once

#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <optional>
#include <utility>

namespace TARN {

/// One group of theme variables as it was published, for look-up by name.
///
/// Variants are converted once per name, so that the look-ups of painting cost one hash access.
template <typename T>
class VariableGroup
{
public:
    VariableGroup() = default;
    explicit VariableGroup(QVariantMap variables)
        : m_variables(std::move(variables))
    {
    }

    /// Returns the variable \a name; a default-constructed value when the group has none or none
    /// of this type.
    T value(const QString &name)
    {
        auto known = m_values.constFind(name);
        if (known == m_values.constEnd()) {
            known = m_values.insert(name, converted(name));
        }
        // A default-constructed value may change with time, as that of a font does.
        return known->has_value() ? **known : T();
    }

private:
    std::optional<T> converted(const QString &name) const
    {
        const auto variable = m_variables.constFind(name);
        if (variable == m_variables.constEnd() || !variable->template canConvert<T>()) {
            return std::nullopt;
        }
        return variable->template value<T>();
    }

    QVariantMap m_variables;
    QHash<QString, std::optional<T>> m_values;
};

} // namespace TARN
