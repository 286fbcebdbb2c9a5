// SPDX-License-Identifier: GPL-2.0-or-later
#include "exporting/batch/JobShard.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <map>
#include <numeric>
#include <set>

using LumetraHost::JobShard;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using Items = std::vector<JobShard::Item>;

/// Sizes as of a card: mostly alike, a few raw files, some empty.
Items MakeItems(int count)
{
    Items items;
    for (int i = 0; i < count; ++i) {
        const auto spread = static_cast<std::uint64_t>(i) * 7919 % 1'000'003;
        items.push_back({"photo" + std::to_string(i * 37 % count), 4'000'000 + 4 * spread});
        if (i % 17 == 0)
            items.back().bytes = 40'000'000;
        if (i % 50 == 0)
            items.back().bytes = 0;
    }
    return items;
}

std::uint64_t SumBytes(const Items& items, const std::vector<std::size_t>& positions)
{
    std::uint64_t sum = 0;
    for (const std::size_t position : positions)
        sum += items[position].bytes;
    return sum;
}

std::vector<std::uint64_t> SumShards(const Items& items, int count)
{
    std::vector<std::uint64_t> sums;
    for (int index = 1; index <= count; ++index)
        sums.push_back(SumBytes(items, JobShard{index, count}.Choose(items)));
    return sums;
}

std::uint64_t GetLargest(const Items& items)
{
    std::uint64_t largest = 0;
    for (const JobShard::Item& item : items)
        largest = std::max(largest, item.bytes);
    return largest;
}

std::set<std::string> GetNames(const Items& items, const std::vector<std::size_t>& positions)
{
    std::set<std::string> names;
    for (const std::size_t position : positions)
        names.insert(items[position].name);
    return names;
}

TEST(JobShard, reachesEveryItemOnce)
{
    const Items items = MakeItems(1000);
    for (const int count : {1, 2, 3, 7, 999, 1000, 1001}) {
        std::vector<int> taken(items.size());
        for (int index = 1; index <= count; ++index)
            for (const std::size_t position : JobShard{index, count}.Choose(items))
                ++taken[position];
        EXPECT_EQ(std::count(taken.begin(), taken.end(), 1), 1000) << count;
    }
}

TEST(JobShard, exceedsTheMeanByNoMoreThanTheLargestFile)
{
    for (const int files : {20, 100, 1000}) {
        const Items items = MakeItems(files);
        const std::vector<std::uint64_t> sums = SumShards(items, 7);
        const std::uint64_t all = std::accumulate(sums.begin(), sums.end(), std::uint64_t{0});
        const std::uint64_t most = *std::max_element(sums.begin(), sums.end());
        EXPECT_LE(most, all / 7 + GetLargest(items)) << files;
    }
}

// The last file that a part gets is its smallest one, and no part had less before it came.
TEST(JobShard, exceedsNoOtherByMoreThanItsSmallestFile)
{
    Items items = MakeItems(1000);
    for (JobShard::Item& item : items)
        item.bytes += 1000;
    const std::vector<std::uint64_t> sums = SumShards(items, 7);
    const std::uint64_t least = *std::min_element(sums.begin(), sums.end());
    for (int index = 1; index <= 7; ++index) {
        std::uint64_t smallest = sums[0];
        for (const std::size_t position : JobShard{index, 7}.Choose(items))
            smallest = std::min(smallest, items[position].bytes);
        EXPECT_LE(sums[static_cast<std::size_t>(index) - 1] - smallest, least) << index;
    }
}

// Machines with other releases of the program have to divide a list alike.
TEST(JobShard, givesTheLargestItemThatIsLeftToTheSmallestPart)
{
    const Items items = {{"a", 3}, {"b", 5}, {"c", 3}, {"d", 4}, {"e", 3}};

    EXPECT_THAT((JobShard{1, 2}.Choose(items)), ElementsAre(1U, 2U));
    EXPECT_THAT((JobShard{2, 2}.Choose(items)), ElementsAre(0U, 3U, 4U));
}

TEST(JobShard, keepsTheOrderOfTheList)
{
    const auto chosen = JobShard{2, 3}.Choose(MakeItems(100));

    EXPECT_TRUE(std::is_sorted(chosen.begin(), chosen.end()));
}

TEST(JobShard, isTheSameWhateverTheOrderOfTheList)
{
    const Items items = MakeItems(100);
    Items reversed = items;
    std::reverse(reversed.begin(), reversed.end());
    for (int index = 1; index <= 3; ++index) {
        const JobShard shard{index, 3};
        EXPECT_EQ(GetNames(items, shard.Choose(items)), GetNames(reversed, shard.Choose(reversed)));
    }
}

TEST(JobShard, dividesPhotosWithoutBytesToo)
{
    const Items items(10, {"missing", 0});

    EXPECT_EQ((JobShard{1, 2}.Choose(items).size()), 5U);
    EXPECT_EQ((JobShard{2, 2}.Choose(items).size()), 5U);
}

TEST(JobShard, mayBeEmpty)
{
    EXPECT_THAT((JobShard{2, 2}.Choose({{"only", 5}})), IsEmpty());
    EXPECT_THAT((JobShard{1, 2}.Choose({{"only", 5}})), ElementsAre(0U));
    EXPECT_THAT((JobShard{1, 1}.Choose({})), IsEmpty());
}

TEST(JobShard, isReadFromItsName)
{
    const auto shard = JobShard::Parse(QStringLiteral("2/4"));

    ASSERT_TRUE(shard);
    EXPECT_EQ(shard->index, 2);
    EXPECT_EQ(shard->count, 4);
    EXPECT_EQ(shard->GetName(), QStringLiteral("2/4"));
    for (const char* text : {"", "2", "0/4", "5/4", "-1/4", "1/0", "1/4 ", " 1/4", "1/4/2", "a/b",
                             "1/100001", "1/9999999", "4294967297/4294967297", "1.0/4", "1/4\n"})
        EXPECT_FALSE(JobShard::Parse(QLatin1String(text))) << text;
}

} // namespace
