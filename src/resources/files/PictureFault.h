#pragma once

#include <QtCore/QString>

class QIODevice;

namespace TARN {

/// What a picture is read for.
struct PictureUse
{
    qint64 mostPixels;
    /// Whether a drawing is drawn at its own size. Other pictures are read at theirs anyway, even
    /// to be scaled.
    bool atOwnSize;

    bool operator==(const PictureUse &other) const
    {
        return mostPixels == other.mostPixels && atOwnSize == other.atOwnSize;
    }
};

/// Returns why the picture \a name that \a device holds must not be read for \a use; an empty text
/// when nothing speaks against it, be it because it is no picture that anything could read. It is
/// not decoded to find out.
///
/// \a device has to be open for reading, at its beginning, and is left there.
QString pictureFault(QIODevice &device, const QString &name, const PictureUse &use);

} // namespace TARN
