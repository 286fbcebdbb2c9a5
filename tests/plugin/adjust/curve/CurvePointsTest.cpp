// SPDX-License-Identifier: GPL-2.0-or-later
#include "adjust/curve/CurvePoints.h"

#include "FakeEditor.h"

#include <gtest/gtest.h>

using namespace LumetraAdjust;
using LumetraTest::FakeEditor;

namespace {

class CurvePointsTest : public testing::Test
{
protected:
    FakeEditor editor;
    Adjustments adjustments{editor.DescribeEffects()};
};

} // namespace

TEST_F(CurvePointsTest, areTheDiagonalAtFirst)
{
    const CurvePoints curve = CurvePoints::Read(adjustments, 0);

    EXPECT_EQ(curve.Count(), 2);
    EXPECT_TRUE(curve.IsDiagonal());
    EXPECT_EQ(curve.GetHeight(37), 37);
}

TEST_F(CurvePointsTest, comeBackFromTheEffectAsTheyWere)
{
    for (int channel = 0; channel < CurvePoints::Channels; ++channel) {
        CurvePoints curve;
        curve.Add({25, 12.5});
        curve.Add({75.5, 90});
        adjustments.Set(CurvePoints::EffectID, curve.Write(channel));

        EXPECT_EQ(CurvePoints::Read(adjustments, channel).Get(), curve.Get()) << channel;
    }
}

TEST_F(CurvePointsTest, leaveNothingInTheEffectWhenTheyAreTheDiagonal)
{
    CurvePoints curve;
    curve.Add({25, 12.5});
    adjustments.Set(CurvePoints::EffectID, curve.Write(2));
    ASSERT_FALSE(adjustments.IsNeutral());

    adjustments.Set(CurvePoints::EffectID, CurvePoints().Write(2));

    EXPECT_TRUE(adjustments.IsDefault(CurvePoints::EffectID));
    EXPECT_TRUE(adjustments.IsNeutral());
}

TEST_F(CurvePointsTest, areAtMostSixteen)
{
    CurvePoints curve;
    for (int i = 1; i < 15; ++i)
        EXPECT_TRUE(curve.Add({i * 6.0, 50}));

    EXPECT_EQ(curve.Count(), CurvePoints::MostPoints);
    EXPECT_FALSE(curve.Add({97, 97}));
}

TEST_F(CurvePointsTest, keepTheirOrderAndTheirDistance)
{
    CurvePoints curve;
    const int middle = curve.Add({50, 50}).value();
    EXPECT_FALSE(curve.Add({50.5, 20}));

    curve.Move(middle, {150, 130});
    EXPECT_EQ(curve.Get()[1], QPointF(99, 100));
    curve.Move(middle, {-10, -10});
    EXPECT_EQ(curve.Get()[1], QPointF(1, 0));
}

TEST_F(CurvePointsTest, staySoManyThatThereIsACurve)
{
    CurvePoints curve;
    curve.Add({50, 60});

    EXPECT_TRUE(curve.Remove(0));
    EXPECT_FALSE(curve.Remove(0));
    EXPECT_EQ(curve.Count(), 2);
}

TEST_F(CurvePointsTest, areHitByACurveThatDoesNotSwing)
{
    CurvePoints curve;
    curve.Add({20, 5});
    curve.Add({50, 60});
    curve.Add({60, 60});

    for (const QPointF& point : curve.Get())
        EXPECT_NEAR(curve.GetHeight(point.x()), point.y(), 1e-9);
    for (double x = 0; x < 100; x += 0.5)
        EXPECT_LE(curve.GetHeight(x), curve.GetHeight(x + 0.5) + 1e-9) << x;
    EXPECT_NEAR(curve.GetHeight(55), 60, 1e-9);
}

TEST_F(CurvePointsTest, areReadFromAnEditOfAnyOrder)
{
    adjustments.Set(
        CurvePoints::EffectID,
        {{"points", 3}, {"x0", 80}, {"y0", 90}, {"x1", 0}, {"y1", 10}, {"x2", 300}, {"y2", 400}});

    EXPECT_EQ(CurvePoints::Read(adjustments, 0).Get(),
              (std::vector<QPointF>{{0, 10}, {80, 90}, {100, 100}}));
}
