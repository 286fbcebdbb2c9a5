// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <vector>

#include <time.h>

namespace LumetraBench {

/// What a clock of the system shows, for example CLOCK_PROCESS_CPUTIME_ID.
double GetMilliseconds(clockid_t clock);

/// The upper one of two in the middle; 0 without values.
double GetMedian(std::vector<double> values);

} // namespace LumetraBench
