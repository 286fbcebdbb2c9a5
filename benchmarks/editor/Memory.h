// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace LumetraBenchmark {

/// A line of /proc/self/status, in megabytes.
double Memory(const char* key);
/// A line of /proc/self/smaps_rollup, in megabytes. "Pss:" is the memory of the process, where
/// pages that several processes share are divided among them.
double SharedMemory(const char* key);

} // namespace LumetraBenchmark
