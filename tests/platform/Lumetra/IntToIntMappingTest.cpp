// SPDX-License-Identifier: MIT
#include "Zorvik/Lumetra/IntToIntMapping.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>

using Zorvik::Lumetra::IntToIntMapping;

namespace {

__extension__ using Wide = __int128;

constexpr int Lowest = std::numeric_limits<int>::min();
constexpr int Highest = std::numeric_limits<int>::max();

/// Maps by another route: the exact fraction over a common denominator, plus or minus a half,
/// truncated.
int Oracle(int value, int fromBegin, int fromEnd, int toBegin, int toEnd)
{
    if (fromBegin == fromEnd)
        return toBegin;
    const int clamped =
        std::clamp(value, std::min(fromBegin, fromEnd), std::max(fromBegin, fromEnd));
    Wide numerator = (Wide(clamped) - fromBegin) * (Wide(toEnd) - toBegin) +
                     Wide(toBegin) * (Wide(fromEnd) - fromBegin);
    Wide denominator = Wide(fromEnd) - fromBegin;
    if (denominator < 0) {
        numerator = -numerator;
        denominator = -denominator;
    }
    const Wide half = numerator >= 0 ? denominator : -denominator;
    return static_cast<int>((2 * numerator + half) / (2 * denominator));
}

struct Row
{
    int firstBegin, firstEnd, secondBegin, secondEnd, input, forward;
};

void PrintTo(const Row& row, std::ostream* stream)
{
    *stream << row.firstBegin << ".." << row.firstEnd << " to " << row.secondBegin << ".."
            << row.secondEnd << ", " << row.input;
}

class MappingTable : public testing::TestWithParam<Row>
{
};

} // namespace

TEST_P(MappingTable, mapsForward)
{
    const Row& row = GetParam();
    const IntToIntMapping mapping(row.firstBegin, row.firstEnd, row.secondBegin, row.secondEnd);
    EXPECT_EQ(mapping.GetForward(row.input), row.forward);
    EXPECT_EQ(Oracle(row.input, row.firstBegin, row.firstEnd, row.secondBegin, row.secondEnd),
              row.forward)
        << "the oracle";
}

TEST_P(MappingTable, mapsBackwardWithTheRangesExchanged)
{
    const Row& row = GetParam();
    const IntToIntMapping mapping(row.secondBegin, row.secondEnd, row.firstBegin, row.firstEnd);
    EXPECT_EQ(mapping.GetBackward(row.input), row.forward);
}

INSTANTIATE_TEST_SUITE_P(
    IntToIntMapping, MappingTable,
    testing::Values(
        // The blending slider: 100 is the full effect, blend amount 1.
        Row{1, 100, 255, 1, 1, 255}, Row{1, 100, 255, 1, 100, 1}, Row{1, 100, 255, 1, 80, 52},
        Row{1, 100, 255, 1, 50, 129},
        // Clamped first, whichever way the range runs.
        Row{1, 100, 255, 1, 255, 1}, Row{1, 100, 255, 1, 0, 255}, Row{1, 100, 255, 1, Lowest, 255},
        Row{100, 1, 0, 10, 500, 0}, Row{100, 1, 0, 10, -500, 10},
        // Halves away from zero.
        Row{0, 2, 0, 1, 1, 1}, Row{0, 2, 0, -1, 1, -1}, Row{0, 2, -1, 0, 1, -1},
        Row{0, 2, 1, 0, 1, 1}, Row{0, 2, -2, 1, 1, -1}, Row{0, 2, 1, -2, 1, -1},
        Row{0, 4, 0, 2, 1, 1}, Row{0, 4, -2, 0, 1, -2}, Row{0, 4, -2, 0, 3, -1},
        // Just beside a half.
        Row{0, 5, 0, 1, 2, 0}, Row{0, 5, 0, 1, 3, 1}, Row{0, 5, 0, -1, 2, 0},
        // Equal ends give the other begin.
        Row{5, 5, 10, 20, 5, 10}, Row{5, 5, 10, 20, 99, 10}, Row{0, 10, 7, 7, 3, 7},
        // The whole range of int.
        Row{Lowest, Highest, Lowest, Highest, Lowest, Lowest},
        Row{Lowest, Highest, Lowest, Highest, Highest, Highest},
        Row{Lowest, Highest, Lowest, Highest, 0, 0},
        Row{Lowest, Highest, Highest, Lowest, Lowest, Highest},
        Row{Lowest, Highest, Highest, Lowest, 0, -1}, Row{Lowest, Highest, 0, 1, -1, 0},
        Row{Lowest, Highest, 0, 1, 0, 1}, Row{0, 1, Lowest, Highest, 1, Highest}));

TEST(IntToIntMapping, theBlendingSliderComesBackUnchanged)
{
    const IntToIntMapping mapping(1, 100, 255, 1);
    for (int position = 1; position <= 100; ++position)
        EXPECT_EQ(mapping.GetBackward(mapping.GetForward(position)), position);
}

TEST(IntToIntMapping, agreesWithExactArithmetic)
{
    std::mt19937 random(20240521);
    std::uniform_int_distribution<int> wide(Lowest, Highest);
    std::uniform_int_distribution<int> narrow(-20, 20);
    for (int i = 0; i < 200000; ++i) {
        const auto draw = [&] { return i % 2 == 0 ? wide(random) : narrow(random); };
        const int a = draw();
        const int b = draw();
        const int c = draw();
        const int d = draw();
        const int value = draw();
        ASSERT_EQ(IntToIntMapping(a, b, c, d).GetForward(value), Oracle(value, a, b, c, d))
            << a << ".." << b << " to " << c << ".." << d << ", " << value;
    }
}

TEST(IntToIntMapping, isAPlainValue)
{
    const IntToIntMapping mapping(0, 10, 0, 100);
    IntToIntMapping copy(0, 1, 0, 1);
    copy = mapping;
    EXPECT_EQ(copy.GetForward(5), 50);
}
