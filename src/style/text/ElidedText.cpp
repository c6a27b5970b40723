#include "style/text/ElidedText.h"

#include "resources/kept/SlotCache.h"
#include "style/text/GlyphWatch.h"

#include <QtGui/QFontMetrics>

namespace TARN {

namespace {

/// A text and the room for it.
struct ElidedTextKey
{
    QFontMetrics metrics;
    QString text;
    Qt::TextElideMode mode;
    int width;
    int flags;

    bool operator==(const ElidedTextKey &other) const
    {
        return width == other.width && mode == other.mode && flags == other.flags &&
               text == other.text && metrics == other.metrics;
    }
    std::size_t hash() const { return mixedHash({qHash(text), std::size_t(width)}); }
};

QString elided(const ElidedTextKey &key)
{
    return key.metrics.elidedText(key.text, key.mode, key.width, key.flags);
}

} // namespace

QString elidedText(const QFontMetrics &metrics, const QString &text, Qt::TextElideMode mode,
                   int width, int flags)
{
    // An application may be left without being taken down, so the texts are left, too.
    static auto *texts = new SlotCache<ElidedTextKey, QString, 61>(elided);
    static GlyphWatch watch([] { texts->clear(); });
    watch.attend();
    return texts->value({metrics, text, mode, width, flags});
}

} // namespace TARN
