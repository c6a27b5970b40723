#pragma once

#include "catalogue/WidgetColors.h"
#include "catalogue/Words.h"
#include "resources/variables/LookUps.h"
#include "resources/variables/Snapshot.h"
#include "resources/variables/ThemeGeneration.h"

#include <QtCore/QCoreApplication>

#include <array>

namespace TARN {

/// Where the variables of one kind and their disabled twins stand in the snapshot, by index: asking
/// for one by its name takes longer than painting with it.
template <typename Kind, std::size_t Count>
class VariableTable
{
public:
    using Value = typename Kind::Value;

    /// Returns the variable at \a index, whose name \a nameOf() returns; a default-constructed
    /// value when there is none. While a widget is painted that has colours of its own, these.
    /// Valid until the next ThemeGeneration starts.
    template <typename NameOf>
    const Value &value(std::size_t index, bool enabled, NameOf nameOf)
    {
        const Value &found = valueOfTheme(index, enabled, nameOf);
        const WidgetColors *colors = WidgetColors::current();
        return Q_LIKELY(!colors) ? found : colors->turned(found, nameOf());
    }

private:
    template <typename NameOf>
    const Value &valueOfTheme(std::size_t index, bool enabled, NameOf nameOf)
    {
        if (Q_UNLIKELY(m_generation != ThemeGeneration::current())) {
            m_values.fill(nullptr);
            m_generation = ThemeGeneration::current();
        }
        const Value *&kept = m_values.at(2 * index + std::size_t(enabled));
        // Without an application nothing is published. An observer is to hear of every use.
        if (Q_UNLIKELY(!kept || !QCoreApplication::instance() || lookUpObserver)) {
            const Value *found = findVariable<Kind>(Words::twin(nameOf(), enabled));
            kept = found || !QCoreApplication::instance() ? found : &none();
            return found ? *found : none();
        }
        return *kept;
    }

    static const Value &none()
    {
        static const Value none{};
        return none;
    }

    std::array<const Value *, 2 * Count> m_values{};
    ThemeGeneration m_generation;
};

} // namespace TARN
