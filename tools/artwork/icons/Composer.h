#pragma once

#include "icons/Drawing.h"
#include "icons/Palette.h"

#include <QtCore/QHash>

namespace TARN::Artwork {

/// Makes SVG files of drawings.
class Composer
{
public:
    /// \a drawings are all that can be referred to, by name.
    explicit Composer(const QHash<QString, Drawing> &drawings);

    /// Returns the SVG file of the drawing \a name in the colours of \a palette. What is wrong
    /// with it is told in \a errors.
    [[nodiscard]] QByteArray compose(const QString &name, const Palette &palette,
                                     QStringList *errors) const;

private:
    const QHash<QString, Drawing> &m_drawings;
};

} // namespace TARN::Artwork
