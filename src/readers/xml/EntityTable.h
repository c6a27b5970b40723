#pragma once

#include <QtCore/QHash>
#include <QtCore/QString>

namespace TARN {

/// What a piece of text comes to when all references in it are replaced.
struct Extent
{
    qint64 size = 0;
    int depth = 0;
    bool hasMarkup = false;
};

/// The general entities that a document declares.
class EntityTable
{
public:
    explicit EntityTable(qint64 sizeLimit)
        : m_sizeLimit(sizeLimit)
    {
    }

    bool isEmpty() const { return m_entities.isEmpty(); }
    qint64 sizeLimit() const { return m_sizeLimit; }

    /// Adds an entity unless \a name is taken; the first declaration counts. Returns false when
    /// there are too many.
    bool declare(const QString &name, const QString &value);

    /// Sets \a extent to what the entity \a name comes to; nothing if it is not declared. Returns
    /// false when it must not be used: it contains itself, is no complete piece of content, or is
    /// too large.
    bool measure(const QString &name, Extent &extent);

private:
    enum State { Unmeasured, Unusable, Measured };

    struct Entity
    {
        QString value;
        Extent extent;
        State state = Unmeasured;
    };

    QHash<QString, Entity> m_entities;
    qint64 m_sizeLimit;
    int m_textSize = 0;
};

} // namespace TARN
