#pragma once

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <vector>

/// What is measured besides the cases that are listed in PaintCases.h.
namespace MeasurementNames {

inline const QString formWindow = QStringLiteral("form window");
inline const QString dataWindow = QStringLiteral("data window");
/// What the heap has grown by since before the style was in use.
inline const QString memory = QStringLiteral("memory growth");
/// The part of it that painting and the widgets brought.
inline const QString paintingMemory = QStringLiteral("memory growth by painting");
inline const QString applying = QStringLiteral("applying the style");
inline const QString start = QStringLiteral("apply, build and show the form");

} // namespace MeasurementNames

/// What was measured under several styles, in rounds in which the styles took turns. Times are in
/// nanoseconds of the processor, memory is in bytes.
class Measurements
{
public:
    /// Adds what a round gave. Each round has to give a value for each of the styles.
    void add(const QString &style, const QString &name, double value);

    /// Forgets a style that did not stay in all rounds.
    void remove(const QString &style);

    bool has(const QString &style) const;
    bool has(const QString &style, const QString &name) const;

    /// Returns the median over the rounds.
    double value(const QString &style, const QString &name) const;

    /// Returns the median over the rounds of the ratio to "fusion" in the same round.
    double ratio(const QString &style, const QString &name) const;

    /// Returns the geometric mean of the ratios of those of \a names that were measured.
    double meanRatio(const QString &style, const QStringList &names) const;

private:
    using Rounds = std::vector<double>;

    Rounds rounds(const QString &style, const QString &name) const;

    QMap<QString, QMap<QString, Rounds>> m_values;
};
