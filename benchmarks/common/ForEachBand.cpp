// SPDX-License-Identifier: GPL-2.0-or-later
#include "common/ForEachBand.h"

#include "threads/ThreadPool.h"

#include <algorithm>

namespace LumetraBench {

void ForEachBand(int height, int threads, const std::function<void(int, int)>& run)
{
    constexpr int bands = 32;
    const int rows = (height + bands - 1) / bands;
    LumetraHost::ThreadPool::GetShared().ForEach(
        (height + rows - 1) / rows, threads,
        [&](int band) { run(band * rows, std::min(rows, height - band * rows)); });
}

} // namespace LumetraBench
