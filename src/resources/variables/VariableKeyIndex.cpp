#include "resources/variables/VariableKeyIndex.h"

#include <QtGui/QBrush>
#include <QtGui/QColor>
#include <QtGui/QRgba64>

#include <algorithm>

namespace TARN {

namespace {

quint64 bucketOf(const QColor &color)
{
    return color.rgba64();
}

quint64 bucketOf(const QBrush &brush)
{
    return bucketOf(brush.color()) * 31U + static_cast<quint64>(brush.style());
}

// Extended colours compare by nearness, so equal ones need not share a bucket.
bool comparesExactly(const QColor &color)
{
    return color.spec() != QColor::ExtendedRgb;
}

bool comparesExactly(const QBrush &brush)
{
    return comparesExactly(brush.color());
}

/// Tells whether \a key is of those that are preferred when several variables hold one value.
bool isPreferredKey(const QString &key)
{
    return key.startsWith(QLatin1String("Foreground")) || key.startsWith(QLatin1String("Main"));
}

} // namespace

QString keyOfValue(const QVariant &value, const QVariantMap &group)
{
    QString first;
    bool found = false;
    for (auto it = group.cbegin(); it != group.cend(); ++it) {
        if (it.value() != value) {
            continue;
        }
        if (isPreferredKey(it.key())) {
            return it.key();
        }
        if (!found) {
            first = it.key();
            found = true;
        }
    }
    return first;
}

template <typename T>
QString VariableKeyIndex<T>::key(const T &value, const QVariantMap &group)
{
    // The index keeps the group it was made of, so a change of the published one detaches from it.
    if (!m_group.isSharedWith(group)) {
        build(group);
    }
    if (!m_exact || !comparesExactly(value)) {
        return keyOfValue(QVariant::fromValue(value), group);
    }
    const auto bucket = m_buckets.find(bucketOf(value));
    if (bucket == m_buckets.cend()) {
        return {};
    }
    const QVector<Entry> &entries = bucket->second;
    const auto entry = std::find_if(entries.cbegin(), entries.cend(),
                                    [&value](const Entry &e) { return e.value == value; });
    return entry == entries.cend() ? QString() : entry->key;
}

template <typename T>
void VariableKeyIndex<T>::build(const QVariantMap &group)
{
    m_group = group;
    m_exact = true;
    m_buckets.clear();
    for (auto it = group.cbegin(); it != group.cend(); ++it) {
        // A variant of another type may still compare equal to a colour after conversion.
        m_exact = m_exact && it->userType() == qMetaTypeId<T>();
        const T value = it->template value<T>();
        m_exact = m_exact && comparesExactly(value);
        if (!m_exact) {
            m_buckets.clear();
            return;
        }
        add(value, it.key());
    }
}

template <typename T>
void VariableKeyIndex<T>::add(const T &value, const QString &key)
{
    QVector<Entry> &entries = m_buckets[bucketOf(value)];
    const auto known = std::find_if(entries.begin(), entries.end(),
                                    [&value](const Entry &e) { return e.value == value; });
    if (known == entries.end()) {
        entries.append({value, key});
    } else if (!isPreferredKey(known->key) && isPreferredKey(key)) {
        known->key = key;
    }
}

template class VariableKeyIndex<QColor>;
template class VariableKeyIndex<QBrush>;

} // namespace TARN
