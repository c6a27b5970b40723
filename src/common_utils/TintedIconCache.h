#pragma once

#include "common_utils/IconThemeState.h"

#include <QtCore/QCache>
#include <QtCore/QPointer>
#include <QtGui/QIcon>
#include <QtGui/QPixmap>
#include <QtWidgets/QStyle>

class QCoreApplication;

namespace TARN {

/// Names what a tinted icon shows when it is asked for one picture.
struct PictureKey
{
    /// The engine that renders the picture.
    quint64 engine;
    QSize size;
    /// Device pixels per device-independent pixel.
    qreal scale;
    QIcon::Mode mode;
    QIcon::State state;
    /// The palette that the mode's effect takes its colours from; 0 for a mode without an effect.
    qint64 palette;
};

/// What a source that may change shows now; empty for any other, which need not be asked.
struct Originals
{
    /// In the mode that is asked for.
    QPixmap own;
    /// In the normal mode, of which the look of another mode may be made.
    QPixmap normal;
};

/// A picture, and what it was made of.
struct KeptPicture
{
    QPixmap picture;
    Originals originals;
};

/// Names a tinted icon by what it is made of.
struct TintKey
{
    qint64 source;
    QRgb from;
    QBrush to;
    bool disabled;
};

/// Keeps what tinted icons have rendered, within one limit for all of them together.
///
/// The kept pictures and sizes are dropped when the application's style or icon theme, from which
/// they were derived, changes. Everything is dropped when the application ends.
class TintedIconCache
{
public:
    /// Returns the cache, ready for use: nothing in it is out of date.
    static TintedIconCache &current();

    /// Returns the kept picture, or a null pointer. The cache owns it; it stays valid until the
    /// cache is used again.
    const KeptPicture *picture(const PictureKey &key) const { return m_pictures.object(key); }
    void keepPicture(const PictureKey &key, const KeptPicture &picture);

    /// Returns the kept actual size, or a null pointer. The cache owns it, as above.
    const QSize *actualSize(const PictureKey &key) const { return m_actualSizes.object(key); }
    void keepActualSize(const PictureKey &key, const QSize &size);

    /// Returns the kept icon, or a null pointer. The cache owns it, as above.
    const QIcon *icon(const TintKey &key) const { return m_icons.object(key); }
    void keepIcon(const TintKey &key, const QIcon &icon);

private:
    TintedIconCache();

    static TintedIconCache &shared();
    void watchApplication();
    void dropOutdated();
    void clear();

    QCache<PictureKey, KeptPicture> m_pictures;
    QCache<PictureKey, QSize> m_actualSizes;
    QCache<TintKey, QIcon> m_icons;
    QPointer<QCoreApplication> m_application;
    QPointer<QStyle> m_style;
    IconThemeState m_iconTheme;
};

bool operator==(const PictureKey &a, const PictureKey &b);
uint qHash(const PictureKey &key, uint seed);
/// Tells whether both are the same to the pixel.
bool operator==(const Originals &a, const Originals &b);
bool operator==(const TintKey &a, const TintKey &b);
uint qHash(const TintKey &key, uint seed);

} // namespace TARN
