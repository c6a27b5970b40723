#pragma once

#include "resources/kept/KeptValue.h"
#include "style/text/GlyphWatch.h"

#include <QtCore/QCache>

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
    // An application may be left without being taken down, so the texts are left, too.
    static auto *kept = new Kept([] { return std::make_unique<Texts>(Capacity); });
    static GlyphWatch watch([] { kept->value()->clear(); });
    watch.attend();
    Texts &texts = *kept->value();
    if (const auto *known = texts.object(key)) {
        return *known;
    }
    auto text = std::make_shared<const Value>(key);
    texts.insert(key, new std::shared_ptr<const Value>(text), cost);
    return text;
}

} // namespace TARN
