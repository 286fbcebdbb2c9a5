// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "threads/CancelToken.h"
#include "threads/ThreadPool.h"

#include <functional>

namespace LumetraHost {

/// Rows of a band: few enough to share the work out evenly and to keep rings of bands small, enough
/// that taking a band costs nothing beside the work on it.
constexpr int RowsPerBand = 16;

/// The bands of a picture of `rows` rows; the last band may be shorter.
constexpr int CountBands(int rows)
{
    return (rows + RowsPerBand - 1) / RowsPerBand;
}

/// Calls work(first, end) for every band of `rows` rows, in any order, on up to `threads` threads
/// of the pool (below 1: all). Once `cancel` (null: never) is cancelled, no further band is begun,
/// and the result is false. Exceptions as from ThreadPool::ForEach().
bool ForEachBand(ThreadPool& pool, int rows, int threads, const CancelToken* cancel,
                 const std::function<void(int first, int end)>& work);

} // namespace LumetraHost
