// SPDX-License-Identifier: GPL-2.0-or-later
#include "threads/RowBands.h"

#include <algorithm>

namespace LumetraHost {

bool ForEachBand(ThreadPool& pool, int rows, int threads, const CancelToken* cancel,
                 const std::function<void(int first, int end)>& work)
{
    const auto isCancelled = [cancel] { return cancel && cancel->IsCancelled(); };
    pool.ForEach(CountBands(rows), threads, [&](int band) {
        if (!isCancelled())
            work(band * RowsPerBand, std::min(rows, (band + 1) * RowsPerBand));
    });
    return !isCancelled();
}

} // namespace LumetraHost
