#include "style/text/ElidedText.h"

#include <QtGui/QFontMetrics>
#include <QtGui/QGuiApplication>

#include <array>
#include <optional>

namespace TARN {

namespace {

/// What a text is elided for.
struct Room
{
    Qt::TextElideMode mode = Qt::ElideNone;
    int width = 0;
    int flags = 0;

    bool operator==(const Room &other) const
    {
        return mode == other.mode && width == other.width && flags == other.flags;
    }
};

/// The texts that were last elided.
class ElidedTexts
{
public:
    ElidedTexts()
    {
        // The same font may now have other glyphs.
        QObject::connect(qGuiApp, &QGuiApplication::fontDatabaseChanged, qGuiApp,
                         [this] { m_entries.fill({}); });
    }

    QString text(const QFontMetrics &metrics, const QString &text, const Room &room)
    {
        const std::size_t slot = (qHash(text) * 31 + uint(room.width)) % entryCount;
        Entry &entry = m_entries.at(slot);
        if (!entry.metrics || *entry.metrics != metrics || entry.text != text ||
            !(entry.room == room)) {
            entry = {metrics, text, room,
                     metrics.elidedText(text, room.mode, room.width, room.flags)};
        }
        return entry.elided;
    }

private:
    struct Entry
    {
        std::optional<QFontMetrics> metrics;
        QString text;
        Room room;
        QString elided;
    };

    static constexpr std::size_t entryCount = 127;

    std::array<Entry, entryCount> m_entries;
};

} // namespace

QString elidedText(const QFontMetrics &metrics, const QString &text, Qt::TextElideMode mode,
                   int width, int flags)
{
    // Fonts are not to be taken down after the application, so they are left to the end of the
    // process.
    static auto *texts = new ElidedTexts;
    return texts->text(metrics, text, {mode, width, flags});
}

} // namespace TARN
