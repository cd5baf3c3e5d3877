#include "bench/LatencySample.h"

#include <algorithm>
#include <cmath>

namespace foodservice {

double LatencySample::percentile(double fraction) const
{
    if (m_values.empty())
        return 0;
    auto sorted = m_values;
    std::sort(sorted.begin(), sorted.end());
    const auto rank = static_cast<std::size_t>(std::ceil(fraction * static_cast<double>(sorted.size())));
    return sorted[std::clamp<std::size_t>(rank, 1, sorted.size()) - 1];
}

} // namespace foodservice
