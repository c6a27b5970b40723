#pragma once

#include "resources/variables/LookUps.h"

#include <QtCore/QCoreApplication>

#include <array>
#include <optional>

namespace TARN {

/// The values of variables and their disabled twins by index: asking for one by name takes longer
/// than painting with it. To be held in a ProcessCached value, as all that is kept.
template <typename T, std::size_t Count>
class VariableTable
{
public:
    /// Returns the value at \a index; on its first use it is what \a lookUp returns.
    template <typename LookUp>
    const T &value(std::size_t index, bool enabled, LookUp lookUp)
    {
        std::optional<T> &entry = m_values.at(2 * index + std::size_t(enabled));
        // Without an application nothing is published yet. An observer is to hear of every use.
        if (!entry || !QCoreApplication::instance() || Q_UNLIKELY(lookUpObserver)) {
            entry = lookUp();
        }
        return *entry;
    }

private:
    std::array<std::optional<T>, 2 * Count> m_values;
};

} // namespace TARN
