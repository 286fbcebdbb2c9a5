// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <vector>

#include <time.h>

namespace LumetraBench {

/// The time of a system's clock, for example CLOCK_PROCESS_CPUTIME_ID.
double GetMilliseconds(clockid_t clock);

/// The median, the upper one of two in the middle; 0 without values.
double GetMedian(std::vector<double> values);

} // namespace LumetraBench
