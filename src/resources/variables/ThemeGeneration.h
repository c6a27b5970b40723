#pragma once

namespace TARN {

/// The time between two clean switches of the theme. What is kept of a theme belongs to the
/// generation that it was looked up in, and is outdated in any other. An application that does not
/// set "appLiveThemeSwitch" has one generation only.
///
/// Serves a SlotCache as the circumstances of its values.
class ThemeGeneration
{
public:
    /// The generation before the first switch.
    constexpr ThemeGeneration() = default;

    static ThemeGeneration current() { return s_current; }
    /// Outdates everything that is kept. To be called on the GUI thread.
    static void startNext() { ++s_current.m_number; }

    friend bool operator==(ThemeGeneration a, ThemeGeneration b)
    {
        return a.m_number == b.m_number;
    }
    friend bool operator!=(ThemeGeneration a, ThemeGeneration b) { return !(a == b); }

private:
    static ThemeGeneration s_current;

    unsigned int m_number = 0;
};

} // namespace TARN
