// SPDX-License-Identifier: GPL-2.0-or-later
#include "drawer/view/TickCosts.h"

#include "host/engine/TestPictures.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>

namespace LumetraHost {
namespace {

using Zorvik::Quindle::EffectsSettings;

constexpr double Pixels = 8e6;
constexpr double Assumed = 100;

Layer MakeLayer(double stops, double contrast)
{
    return {std::make_shared<EffectsSettings>(
                MakeSettings({MakeEffect("exposure", {{"stops", stops}}),
                              MakeEffect("contrast", {{"amount", contrast}})})),
            std::nullopt};
}

class Ticks : public testing::Test
{
protected:
    void Tick(double stops, double contrast, double pixels = Pixels)
    {
        m_costs.Begin({m_below, MakeLayer(stops, contrast)}, pixels);
    }

    void TickExactly(double stops, double contrast, double time)
    {
        Tick(stops, contrast);
        m_costs.AddExact(time);
    }

    /// The exact ticks of an exposure take 1000.
    void DragExposure()
    {
        TickExactly(0.1, 5, 5000);
        TickExactly(0.2, 5, 3000);
        TickExactly(0.3, 5, 1000);
        Tick(0.4, 5);
    }

    const Layer m_below = MakeLayer(0.5, 10);
    TickCosts m_costs{0.9};
};

TEST_F(Ticks, areExactUntilOneWasMeasuredWithAllThatIsKept)
{
    TickExactly(0.1, 5, 5000);
    Tick(0.2, 5);
    EXPECT_FALSE(m_costs.IsTableQuicker(Assumed));
    m_costs.AddExact(3000);
    Tick(0.3, 5);
    EXPECT_FALSE(m_costs.GetExact());
    EXPECT_FALSE(m_costs.IsTableQuicker(Assumed));
    m_costs.AddExact(1000);
    Tick(0.4, 5);
    EXPECT_EQ(m_costs.GetExact(), 1000);
    EXPECT_TRUE(m_costs.IsTableQuicker(Assumed));
}

TEST_F(Ticks, comeFromTablesWhereTheseTakeLess)
{
    DragExposure();
    EXPECT_TRUE(m_costs.IsTableQuicker(899));
    EXPECT_FALSE(m_costs.IsTableQuicker(901));
}

TEST_F(Ticks, areChosenByMeasuredTimes)
{
    DragExposure();
    m_costs.AddTable(950);
    Tick(0.5, 5);
    EXPECT_FALSE(m_costs.IsTableQuicker(Assumed));
    m_costs.AddTable(800);
    Tick(0.6, 5);
    EXPECT_TRUE(m_costs.IsTableQuicker(Assumed));
    m_costs.AddExact(850);
    Tick(0.7, 5);
    EXPECT_FALSE(m_costs.IsTableQuicker(Assumed));
}

TEST_F(Ticks, areNotMistakenWhereAnotherProgramHeldOneUp)
{
    DragExposure();
    m_costs.AddTable(950);
    m_costs.AddExact(9000);
    Tick(0.5, 5);
    EXPECT_FALSE(m_costs.IsTableQuicker(Assumed));
    m_costs.AddExact(2000);
    m_costs.AddTable(800);
    m_costs.AddTable(9000);
    EXPECT_TRUE(m_costs.IsTableQuicker(Assumed));
}

TEST_F(Ticks, areMeasuredAnewWhenAnotherEffectIsDragged)
{
    DragExposure();
    Tick(0.4, 6);
    EXPECT_FALSE(m_costs.GetExact());
    EXPECT_FALSE(m_costs.IsTableQuicker(Assumed));
}

TEST_F(Ticks, areMeasuredAnewForAnotherSize)
{
    DragExposure();
    Tick(0.5, 5, Pixels / 2);
    EXPECT_FALSE(m_costs.IsTableQuicker(Assumed));
}

TEST_F(Ticks, areMeasuredAnewWhenABlendIsDragged)
{
    DragExposure();
    Layer blended = MakeLayer(0.4, 5);
    blended.paintedBlend = 90;
    m_costs.Begin({m_below, blended}, Pixels);
    EXPECT_FALSE(m_costs.IsTableQuicker(Assumed));
}

TEST_F(Ticks, areMeasuredAnewWhenAnEffectIsAdded)
{
    DragExposure();
    const auto more = std::make_shared<EffectsSettings>(MakeSettings(
        {MakeEffect("exposure", {{"stops", 0.5}}), MakeEffect("contrast", {{"amount", 5}}),
         MakeEffect("saturation", {{"amount", 5}})}));
    m_costs.Begin({m_below, {more, std::nullopt}}, Pixels);
    EXPECT_FALSE(m_costs.IsDrag());
    EXPECT_FALSE(m_costs.IsTableQuicker(Assumed));
}

TEST_F(Ticks, areADragFromTheThirdPictureOn)
{
    Tick(0.1, 5);
    Tick(0.2, 5);
    EXPECT_FALSE(m_costs.IsDrag());
    Tick(0.3, 5);
    EXPECT_TRUE(m_costs.IsDrag());
    Tick(0.3, 6);
    EXPECT_FALSE(m_costs.IsDrag());
}

TEST_F(Ticks, stayExactForEffectsThatMakeNoTable)
{
    DragExposure();
    m_costs.RefuseTable();
    Tick(0.5, 5);
    EXPECT_FALSE(m_costs.IsTableQuicker(Assumed));
}

} // namespace
} // namespace LumetraHost
