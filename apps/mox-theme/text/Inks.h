#pragma once

#include <QtCore/QString>

class QColor;

namespace TARN::ThemeTool {

enum class Ink { Plain, Bold, Faint, Red, Yellow, Green };

/// The inks that texts for people are written in, as far as what shows them has any.
class Inks
{
public:
    enum class Range {
        None,  ///< texts stay as they are
        Named, ///< those that have names here
        Every  ///< every colour
    };

    Inks() = default;
    explicit Inks(Range range);

    /// Returns \a text in \a ink.
    QString inked(const QString &text, Ink ink) const;

    /// Returns a patch of \a color and a blank; nothing unless there is every colour. Translucency
    /// is left out.
    QString swatch(const QColor &color) const;

private:
    Range m_range = Range::None;
};

} // namespace TARN::ThemeTool
