// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace LumetraBenchmark {

/// A line of /proc/self/status, in megabytes.
double Memory(const char* key);

} // namespace LumetraBenchmark
