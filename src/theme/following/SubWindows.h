#pragma once

#include <QtCore/QSet>

namespace TARN {

/// The sub-windows of areas. A new style resizes them, and for a moment after a resize a sub-window
/// paints its title as it was at the beginning; minimized ones it puts where they are not looked
/// for.
class SubWindows
{
public:
    /// To be made before the style changes.
    SubWindows();

    /// Has them paint their titles with what is in force now, and those that are minimized stand at
    /// the foot of their area.
    void follow() const;

private:
    QSet<int> m_formerTimers;
};

} // namespace TARN
