#include "style/text/ElidedText.h"

#include "resources/kept/SlotCache.h"

#include <QtGui/QFontMetrics>
#include <QtGui/QGuiApplication>

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

using ElidedTexts = SlotCache<ElidedTextKey, QString, 61>;

/// Fonts are not to be taken down after the application, so the texts are left to the end of the
/// process.
ElidedTexts &keptTexts()
{
    static auto *texts = [] {
        auto *made = new ElidedTexts(elided);
        // The same font may now have other glyphs.
        QObject::connect(qGuiApp, &QGuiApplication::fontDatabaseChanged, qGuiApp,
                         [made] { made->clear(); });
        return made;
    }();
    return *texts;
}

} // namespace

QString elidedText(const QFontMetrics &metrics, const QString &text, Qt::TextElideMode mode,
                   int width, int flags)
{
    return keptTexts().value({metrics, text, mode, width, flags});
}

} // namespace TARN
