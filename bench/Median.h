#pragma once

#include <algorithm>
#include <vector>

// The middle figure of the runs (the upper of the two middle ones for an
// even count): one slow run of a noisy machine does not move it.
inline double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}
