#include "common_utils/TintedIconCache.h"

#include <QtWidgets/QApplication>

#include <utility>

namespace TARN {

namespace {

/// Enough for a thousand icons of 64 by 64 pixels.
constexpr int pictureBytes = 16 * 1024 * 1024;
constexpr int actualSizeCount = 4096;
constexpr int iconCount = 512;

QStyle *applicationStyle()
{
    return qobject_cast<QApplication *>(QCoreApplication::instance()) != nullptr
               ? QApplication::style()
               : nullptr;
}

qint64 bytesOf(const QPixmap &picture)
{
    return qint64(picture.width()) * picture.height() * picture.depth() / 8;
}

/// Engines that paint hand out a new pixmap each time, and so does the toolkit at high resolutions.
bool isSamePicture(const QPixmap &a, const QPixmap &b)
{
    return a.cacheKey() == b.cacheKey() || (a.size() == b.size() && a.toImage() == b.toImage());
}

} // namespace

bool operator==(const PictureKey &a, const PictureKey &b)
{
    return a.engine == b.engine && a.size == b.size && a.scale == b.scale && a.mode == b.mode &&
           a.state == b.state && a.palette == b.palette;
}

uint qHash(const PictureKey &key, uint seed)
{
    const quint64 size = quint64(key.size.width()) << 32 | quint32(key.size.height());
    const quint64 look = quint64(key.mode) << 1 | quint64(key.state);
    return ::qHash(key.engine * 31 + look, seed) ^ ::qHash(size, seed) ^
           ::qHash(quint64(key.palette) + quint64(key.scale * 64), seed);
}

bool operator==(const Originals &a, const Originals &b)
{
    return isSamePicture(a.own, b.own) && isSamePicture(a.normal, b.normal);
}

bool operator==(const TintKey &a, const TintKey &b)
{
    return a.source == b.source && a.from == b.from && a.disabled == b.disabled && a.to == b.to;
}

uint qHash(const TintKey &key, uint seed)
{
    const quint64 brush = quint64(key.to.style()) << 32 | key.to.color().rgba();
    return ::qHash(key.source, seed) ^ ::qHash(key.from, seed) ^ ::qHash(brush, seed) ^
           uint(key.disabled);
}

TintedIconCache::TintedIconCache()
    : m_pictures(pictureBytes)
    , m_actualSizes(actualSizeCount)
    , m_icons(iconCount)
{
}

TintedIconCache &TintedIconCache::shared()
{
    static TintedIconCache cache;
    return cache;
}

TintedIconCache &TintedIconCache::current()
{
    TintedIconCache &cache = shared();
    cache.watchApplication();
    cache.dropOutdated();
    return cache;
}

void TintedIconCache::keepPicture(const PictureKey &key, const KeptPicture &picture)
{
    // Even a null picture takes up about this much.
    constexpr qint64 overhead = 256;
    const qint64 bytes = overhead + bytesOf(picture.picture) + bytesOf(picture.originals.own) +
                         bytesOf(picture.originals.normal);
    // A picture that is larger than the whole limit is kept alone.
    m_pictures.insert(key, new KeptPicture(picture), int(qMin<qint64>(bytes, pictureBytes)));
}

void TintedIconCache::keepActualSize(const PictureKey &key, const QSize &size)
{
    m_actualSizes.insert(key, new QSize(size));
}

void TintedIconCache::keepIcon(const TintKey &key, const QIcon &icon)
{
    m_icons.insert(key, new QIcon(icon));
}

/// Pixmaps must not outlive the application that they were made for.
void TintedIconCache::watchApplication()
{
    if (m_application != QCoreApplication::instance()) {
        m_application = QCoreApplication::instance();
        qAddPostRoutine([] { shared().clear(); });
    }
}

void TintedIconCache::dropOutdated()
{
    QStyle *style = applicationStyle();
    IconThemeState iconTheme = IconThemeState::current();
    if (m_style == style && m_iconTheme == iconTheme) {
        return;
    }
    m_pictures.clear();
    m_actualSizes.clear();
    m_style = style;
    m_iconTheme = std::move(iconTheme);
}

void TintedIconCache::clear()
{
    m_icons.clear();
    m_pictures.clear();
    m_actualSizes.clear();
}

} // namespace TARN
