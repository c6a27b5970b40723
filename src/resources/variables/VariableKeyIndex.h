#pragma once

#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtCore/QVector>

#include <unordered_map>

namespace TARN {

/// Returns the name of \a value in \a group; empty when there is none. Of several, the first in
/// ascending order that starts with "Foreground" or "Main", else the first.
QString keyOfValue(const QVariant &value, const QVariantMap &group);

/// Answers by which name a colour or brush is published in a group of theme variables, without
/// walking the group on each call.
///
/// The index belongs to one state of the group and is made anew when the group has changed. T is
/// QColor or QBrush.
template <typename T>
class VariableKeyIndex
{
public:
    /// Returns the name of \a value in \a group, by the rule of keyOfValue().
    QString key(const T &value, const QVariantMap &group);

private:
    struct Entry
    {
        T value;
        QString key;
    };

    void build(const QVariantMap &group);
    void add(const T &value, const QString &key);

    QVariantMap m_group;
    bool m_exact = true; ///< whether equal values always share a bucket
    std::unordered_map<quint64, QVector<Entry>> m_buckets;
};

} // namespace TARN
