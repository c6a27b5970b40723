#pragma once

#include <optional>
#include <utility>

namespace TARN {

/// Everything that the library computes on first use and keeps for the life of the process is
/// held in a ProcessCached value, so that this one place can drop it all when an application
/// switches themes cleanly.
class ProcessCache
{
public:
    ProcessCache(const ProcessCache &) = delete;
    ProcessCache &operator=(const ProcessCache &) = delete;

    /// Has every kept value computed anew on its next use. To be called on the GUI thread.
    static void dropAll();

protected:
    ProcessCache();
    ~ProcessCache() = default;

    bool m_stale = false;
};

/// A kept value. It is meant to be a function-local static: its first computation then is as
/// thread-safe as the initialisation of any such static.
///
/// A reference to the value stays valid for the life of the process, dropped values included.
template <typename T>
class ProcessCached : private ProcessCache
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
        if (m_stale) {
            m_value = m_compute();
            m_stale = false;
        }
        return m_value;
    }

private:
    Compute m_compute;
    T m_value;
};

/// A kept value that is computed of what its first user knows. To be used as ProcessCached.
template <typename T>
class ProcessKept : private ProcessCache
{
public:
    /// Returns the kept value; on the first use it is what \a compute returns.
    template <typename Compute>
    const T &value(Compute compute)
    {
        if (!m_value || m_stale) {
            m_value = compute();
            m_stale = false;
        }
        return *m_value;
    }

private:
    std::optional<T> m_value;
};

} // namespace TARN
