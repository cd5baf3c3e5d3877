#pragma once

#include <vector>

namespace foodservice {

// Request durations in milliseconds.
class LatencySample
{
public:
    void add(double milliseconds) { m_values.push_back(milliseconds); }
    // Nearest-rank percentile, fraction in (0, 1]; 0 when empty.
    [[nodiscard]] double percentile(double fraction) const;

private:
    std::vector<double> m_values;
};

} // namespace foodservice
