// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/AreaAxis.h"
#include "image/Image.h"
#include "image/KeptImage.h"

namespace LumetraHost {

/// Shrinks an opaque picture row by row, so that it never has to be whole in memory. Every pixel of
/// the target is the average of its area of the source. Immutable; different rows may be made by
/// different threads.
class AreaAverage
{
public:
    /// Each side of the target has 1 pixel to as many as the source.
    AreaAverage(int sourceWidth, int sourceHeight, int width, int height);
    /// Shrinks a part of the source, whose rows keep their numbers.
    AreaAverage(AreaAxis columns, AreaAxis rows, int width);

    /// The rows of the source that row `y` of the target averages: from the first to one behind the
    /// last. Neither decreases from row to row.
    int GetFirstRow(int y) const { return m_rows.GetFirst(y); }
    int GetRowEnd(int y) const { return m_rows.GetEnd(y); }

    /// Makes row `y` of the target and stores it as row `targetRow` of `target`. `source` holds the
    /// averaged rows, row r as its row r modulo its height. Both have the same depth.
    void Run(const Image& source, int y, Image& target, int targetRow) const;
    /// Makes all rows, on the shared pool, of a picture that is there as a whole.
    void RunAll(const Image& source, Image& target) const;
    void RunAll(const KeptImage& source, Image& target) const;

private:
    template <class Rows, class Picture>
    void RunOn(const Picture& source, Image& target) const;
    template <class Rows>
    void RunRow(const Rows& source, int y, typename Rows::Channel* target) const;
    template <class Rows>
    void Weigh(const Rows& source, int y, typename Rows::Channel* target) const;
    template <class Sum, class Rows>
    void AverageBlocks(const Rows& source, int y, typename Rows::Channel* target) const;
    template <class Rows>
    void AverageLargeBlocks(const Rows& source, int y, std::uint16_t* target) const;

    int m_width;
    AreaAxis m_columns;
    AreaAxis m_rows;
};

} // namespace LumetraHost
