#pragma once

#include <array>
#include <cstddef>
#include <initializer_list>
#include <optional>
#include <utility>

namespace TARN {

/// The circumstances of values that depend on nothing but their key.
struct KeyAlone
{
    static KeyAlone current() { return {}; }
    friend bool operator==(KeyAlone, KeyAlone) { return true; }
};

inline constexpr std::size_t hashFactor = 31;

/// Returns one number for \a parts, for the hash() of a key.
inline std::size_t mixedHash(std::initializer_list<std::size_t> parts)
{
    std::size_t hash = 0;
    for (const std::size_t part : parts) {
        hash = hash * hashFactor + part;
    }
    return hash;
}

/// The values that were last asked for, by what they are made of: for what painting needs over and
/// over, and takes longer to make than to find.
///
/// A value is a function of its key and of nothing else: the function that makes it is given the
/// key alone. So what the key leaves out cannot get into the value by mistake; what it holds has to
/// be compared by its `==`. A key is
///
///     struct Key
///     {
///         // ... what the value is made of ...
///         bool operator==(const Key &other) const; // compares all of it
///         std::size_t hash() const;                // may leave parts out
///     };
///
/// What a value depends on besides, since it is the same for all of them at a time, are its
/// \a Circumstances: a type with `==` and a static function current(). All values are dropped on
/// the first use in other circumstances. KeyAlone stands for none. Where a signal tells that the
/// values are outdated, clear() drops them.
///
/// The bound is \a pairCount pairs of slots, each of which holds the two values of its hashes that
/// were last used: two keys that fall together do not drive each other out. A \a pairCount that is
/// prime makes the most of poor hashes.
///
/// To be used on one thread. The object may be a static or a member of anything. A static whose
/// values must not outlive the application is to be left to the end of the process, or cleared.
template <typename Key, typename Value, std::size_t pairCount, typename Circumstances = KeyAlone>
class SlotCache
{
    static_assert(pairCount % hashFactor != 0, "of a mixedHash(), only the last part would count");

public:
    using Make = Value (*)(const Key &key);

    explicit SlotCache(Make make)
        : m_make(make)
    {
    }

    /// Returns the value of \a key. The reference is valid until the cache is used again.
    const Value &value(const Key &key)
    {
        dropOutdated();
        Pair &pair = m_pairs[key.hash() % pairCount];
        if (!pair.isUsed(key)) {
            pair.lastUsed = 1 - pair.lastUsed;
            if (!pair.isUsed(key)) {
                // Made before it has a place, since making it may use the cache for others.
                Value made = m_make(key);
                pair.used().emplace(Entry{key, std::move(made)});
            }
        }
        return pair.used()->value;
    }

    /// Drops all values.
    void clear() { m_pairs.fill(Pair()); }

private:
    struct Entry
    {
        Key key;
        Value value;
    };

    struct Pair
    {
        std::array<std::optional<Entry>, 2> slots;
        std::size_t lastUsed = 0;

        std::optional<Entry> &used() { return slots[lastUsed]; }
        bool isUsed(const Key &key) { return used() && used()->key == key; }
    };

    void dropOutdated()
    {
        Circumstances current = Circumstances::current();
        if (!(current == m_circumstances)) {
            clear();
            m_circumstances = std::move(current);
        }
    }

    Make m_make;
    Circumstances m_circumstances = Circumstances::current();
    std::array<Pair, pairCount> m_pairs;
};

} // namespace TARN
