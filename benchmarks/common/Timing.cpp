// SPDX-License-Identifier: GPL-2.0-or-later
#include "common/Timing.h"

#include <algorithm>
#include <cstddef>

namespace LumetraBench {

double GetMilliseconds(clockid_t clock)
{
    timespec time{};
    clock_gettime(clock, &time);
    return 1e3 * double(time.tv_sec) + 1e-6 * double(time.tv_nsec);
}

double GetMedian(std::vector<double> values)
{
    if (values.empty())
        return 0;
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

} // namespace LumetraBench
