#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>

namespace TARN {

/// Has kept texts dropped when their glyphs are good no longer: glyphs are numbers within a font,
/// the same font may be another one once fonts were added or removed, and fonts end with the
/// application.
class GlyphWatch
{
public:
    using Drop = void (*)();

    /// \a drop is called whenever the glyphs are outdated.
    explicit GlyphWatch(Drop drop)
        : m_drop(drop)
    {
    }

    /// Follows the application that there is now. To be called before kept texts are used.
    void attend();

private:
    Drop m_drop;
    QPointer<QCoreApplication> m_application;
};

} // namespace TARN
