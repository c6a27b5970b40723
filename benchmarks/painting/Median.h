#pragma once

#include <algorithm>
#include <vector>

/// Returns the median of \a values, of which there is at least one.
inline double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}
