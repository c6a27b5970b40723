#include "Measurements.h"

#include "Median.h"
#include "Styles.h"

#include <algorithm>
#include <cmath>
#include <functional>

void Measurements::add(const QString &style, const QString &name, double value)
{
    m_values[style][name].push_back(value);
}

void Measurements::remove(const QString &style)
{
    m_values.remove(style);
}

bool Measurements::has(const QString &style) const
{
    return m_values.contains(style);
}

bool Measurements::has(const QString &style, const QString &name) const
{
    return m_values.value(style).contains(name);
}

double Measurements::value(const QString &style, const QString &name) const
{
    return median(rounds(style, name));
}

double Measurements::ratio(const QString &style, const QString &name) const
{
    Rounds ratios = rounds(style, name);
    const Rounds reference = rounds(StyleNames::fusion, name);
    std::transform(ratios.cbegin(), ratios.cend(), reference.cbegin(), ratios.begin(),
                   std::divides<>());
    return median(std::move(ratios));
}

double Measurements::meanRatio(const QString &style, const QStringList &names) const
{
    double sum = 0;
    int count = 0;
    for (const QString &name : names) {
        if (has(style, name)) {
            sum += std::log(ratio(style, name));
            ++count;
        }
    }
    return std::exp(sum / count);
}

Measurements::Rounds Measurements::rounds(const QString &style, const QString &name) const
{
    return m_values.value(style).value(name);
}
