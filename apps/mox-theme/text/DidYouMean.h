#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVector>

namespace TARN::ThemeTool {

/// Names that exist, among which the one is found that somebody meant.
class KnownNames
{
public:
    KnownNames() = default;
    explicit KnownNames(const QStringList &names);

    /// Returns the name that \a name is most likely a misspelling of; an empty text when none is
    /// near enough. A name that differs only in case is always near enough.
    QString nearest(const QString &name) const;

private:
    struct Known
    {
        QString name;
        QString folded;  ///< without differences of case
        quint64 letters; ///< one bit for each letter that occurs
    };

    QVector<Known> m_names;
};

/// Returns how many letters have to be put in, left out, replaced or swapped with their neighbours
/// to make \a second of \a first, each place being touched once; \a limit + 1 when there are more
/// than \a limit.
int editDistance(QStringView first, QStringView second, int limit);

} // namespace TARN::ThemeTool
