#pragma once

#include "resources/kept/ProcessCache.h"

#include <QtCore/QCache>
#include <QtGui/QGuiApplication>

#include <memory>

namespace TARN {

/// Returns the Value that is made of \a key, kept from one painting to the next: a text that is
/// laid out, which takes several times longer than drawing it. At most \a Capacity of \a cost are
/// kept; those that were not asked for the longest time are dropped first.
template <typename Value, int Capacity, typename Key>
std::shared_ptr<const Value> keptText(const Key &key, int cost = 1)
{
    using Texts = QCache<Key, std::shared_ptr<const Value>>;
    using Kept = ProcessCached<std::unique_ptr<Texts>>;
    // Fonts are not to be taken down after the application, so the texts are left to the end of
    // the process.
    static auto *kept = [] {
        auto *texts = new Kept([] { return std::make_unique<Texts>(Capacity); });
        // Glyphs are numbers within a font, and the same font may now be another one.
        QObject::connect(qGuiApp, &QGuiApplication::fontDatabaseChanged, qGuiApp,
                         [texts] { texts->value()->clear(); });
        return texts;
    }();
    Texts &texts = *kept->value();
    if (const auto *known = texts.object(key)) {
        return *known;
    }
    auto text = std::make_shared<const Value>(key);
    texts.insert(key, new std::shared_ptr<const Value>(text), cost);
    return text;
}

} // namespace TARN
