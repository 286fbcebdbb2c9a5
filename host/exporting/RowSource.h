// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/file/RowEncoder.h"
#include "threads/CancelToken.h"
#include "threads/ThreadPool.h"

namespace LumetraHost {

/// An upright picture whose rows are there, or are decoded, one after the other.
class RowSource
{
public:
    RowSource() = default;
    RowSource(const RowSource&) = delete;
    RowSource& operator=(const RowSource&) = delete;
    virtual ~RowSource() = default;

    virtual PictureForm GetForm() const = 0;
    /// True when rows can be read from top to bottom alone, by one thread at a time. Otherwise any
    /// threads may read any rows.
    virtual bool IsInOrder() const = 0;
    /// Reads `count` rows of the picture from its row `y` on into `rows` from row `first` on, at
    /// the depth of `rows`, which is not less than the picture's own.
    virtual void Read(int y, int count, Image& rows, int first) = 0;
    /// The picture as one of width x height, no side of which is longer than its own: area averages
    /// with the picture's depth, the same from a file as from memory. Leaves the reading of rows
    /// where it is. `threads`: at least 1. Null when it was cancelled.
    virtual Image Reduce(int width, int height, int threads, ThreadPool& pool,
                         const CancelToken* cancel) const = 0;
};

} // namespace LumetraHost
