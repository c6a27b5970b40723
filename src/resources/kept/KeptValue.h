#pragma once

#include "resources/variables/ThemeGeneration.h"

#include <optional>

namespace TARN {

/// A value that is computed on first use and kept for the life of the process, or until the next
/// clean switch of the theme: then it is computed anew on its next use.
///
/// As a function-local static its first computation is as thread-safe as the initialisation of any
/// such static. A reference to the value is valid as long as the object, but what it refers to is
/// another value after a clean switch.
template <typename T>
class ProcessCached
{
public:
    using Compute = T (*)();

    explicit ProcessCached(Compute compute)
        : m_compute(compute)
        , m_value(compute())
    {
    }

    T &value()
    {
        const ThemeGeneration current = ThemeGeneration::current();
        if (m_generation != current) {
            m_value = m_compute();
            m_generation = current;
        }
        return m_value;
    }

private:
    Compute m_compute;
    // Taken before the value is computed: a switch in the meantime outdates it.
    ThemeGeneration m_generation = ThemeGeneration::current();
    T m_value;
};

/// The same for a value that is computed of what its first user knows.
template <typename T>
class ProcessKept
{
public:
    /// Returns the kept value; on the first use it is what \a compute returns.
    template <typename Compute>
    const T &value(Compute compute)
    {
        const ThemeGeneration current = ThemeGeneration::current();
        if (!m_value || m_generation != current) {
            m_value = compute();
            m_generation = current;
        }
        return *m_value;
    }

private:
    ThemeGeneration m_generation;
    std::optional<T> m_value;
};

} // namespace TARN
