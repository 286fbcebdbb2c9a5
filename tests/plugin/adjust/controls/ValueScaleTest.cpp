// SPDX-License-Identifier: GPL-2.0-or-later
#include "adjust/controls/ValueScale.h"

#include <gtest/gtest.h>

using LumetraAdjust::ValueScale;
using LumetraEditor::ParameterDescription;

namespace {

ParameterDescription Range(double minimum, double maximum, double defaultValue)
{
    ParameterDescription parameter;
    parameter.minimum = minimum;
    parameter.maximum = maximum;
    parameter.defaultValue = defaultValue;
    return parameter;
}

} // namespace

TEST(ValueScale, hasTheDefaultAtPositionZero)
{
    const ValueScale scale(Range(-2, 3, 0.2126));

    EXPECT_EQ(scale.ToPosition(0.2126), 0);
    EXPECT_EQ(scale.ToValue(0), 0.2126);
}

TEST(ValueScale, findsStepsThatSuitTheRange)
{
    EXPECT_EQ(ValueScale(Range(-100, 100, 0)).GetStep(), 1);
    EXPECT_EQ(ValueScale(Range(0, 100, 40)).GetStep(), 1);
    EXPECT_DOUBLE_EQ(ValueScale(Range(-5, 5, 0)).GetStep(), 0.01);
    EXPECT_EQ(ValueScale(Range(-5, 5, 0)).GetDecimals(), 2);
    EXPECT_EQ(ValueScale(Range(2000, 15000, 6500)).GetStep(), 10);
    EXPECT_DOUBLE_EQ(ValueScale(Range(0.005, 0.2, 0.015)).GetStep(), 0.001);
}

TEST(ValueScale, reachesEveryStepThereAndBack)
{
    for (const ParameterDescription& range :
         {Range(-100, 100, 0), Range(-5, 5, 0), Range(2000, 15000, 6500), Range(0.02, 0.3, 0.08),
          Range(0, 500, 0)}) {
        const ValueScale scale(range);
        EXPECT_NEAR(scale.ToValue(scale.GetLowest()), range.minimum, scale.GetStep());
        EXPECT_NEAR(scale.ToValue(scale.GetHighest()), range.maximum, scale.GetStep());
        for (int position = scale.GetLowest(); position <= scale.GetHighest(); ++position) {
            const double value = scale.ToValue(position);
            ASSERT_EQ(scale.ToPosition(value), position) << value;
            ASSERT_GE(value, range.minimum);
            ASSERT_LE(value, range.maximum);
        }
    }
}

TEST(ValueScale, keepsWholeNumbersWhole)
{
    ParameterDescription seed = Range(0, 65535, 0);
    seed.kind = ParameterDescription::Kind::Whole;

    EXPECT_EQ(ValueScale(seed).GetStep(), 1);
    EXPECT_EQ(ValueScale(seed).GetHighest(), 65535);
}

TEST(ValueScale, takesAValueOutOfRangeForItsNearestEnd)
{
    const ValueScale scale(Range(-100, 100, 0));

    EXPECT_EQ(scale.ToPosition(1e9), 100);
    EXPECT_EQ(scale.ToPosition(-1e9), -100);
}
