// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace LumetraHost {

/// One of several parts of a list of jobs, which programs on other machines carry out. All parts
/// together are the whole list, and no job is in two of them. Every machine divides the list by
/// itself: the parts are the same as long as the names and sizes are, in whatever order they come.
struct JobShard
{
    static constexpr int MostShards = 100'000;

    struct Item
    {
        std::string name;        ///< of the job; the order of jobs of one size
        std::uint64_t bytes = 0; ///< of its photo, which stand for the time that it takes
    };

    int index = 1; ///< 1 to count
    int count = 1;

    /// Reads "2/4"; nothing for any other text and for numbers out of their ranges.
    static std::optional<JobShard> Parse(const QString& text);
    /// "2/4".
    QString GetName() const;

    /// The positions of the items of this part, in their order. Parts have about the same number of
    /// bytes: the largest item that is left goes to the part that has least. None exceeds
    /// the mean by more than the largest item.
    std::vector<std::size_t> Choose(const std::vector<Item>& items) const;
};

} // namespace LumetraHost
