// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/engine/TestPictures.h"

#include "engine/effects/EffectKinds.h"
#include "engine/stages/CurveTableStage.h"
#include "engine/stages/SrgbStage.h"
#include "engine/stages/StageChain.h"
#include "image/Srgb.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

namespace LumetraHost {
namespace {

using Effects = std::vector<Zorvik::Quindle::EffectPtr>;

std::vector<StagePtr> MakeStages(const Effects& effects, Isa isa = GetDefaultIsa())
{
    std::vector<StagePtr> stages;
    for (const auto& effect : effects)
        stages.push_back(EffectKinds::Find(effect->GetEffectID())
                             ->createStage(*effect, {isa, PictureArea::Whole(1, 1)}));
    return stages;
}

/// A ramp of encoded values from -0.2 to 1.5, in linear light when asked for.
struct Ramp
{
    static constexpr int Count = 1024;

    explicit Ramp(ColourSpace space)
    {
        for (int i = 0; i < Count; ++i) {
            const double encoded = -0.2 + 1.7 * i / (Count - 1);
            const double value = space == ColourSpace::Linear ? SrgbToLinear(encoded) : encoded;
            for (auto& plane : planes)
                plane[std::size_t(i)] = float(value);
        }
    }
    Tile GetTile() { return {planes[0].data(), planes[1].data(), planes[2].data(), Count}; }

    alignas(64) std::array<std::array<float, Count>, 3> planes;
};

Effects MakeCurves()
{
    return {MakeEffect("contrast", {{"amount", 40}}),
            MakeEffect("liftGammaGain",
                       {{"slopeRed", 1.2}, {"offsetBlue", 0.02}, {"powerGreen", 0.9}})};
}

TEST(CurveTable, followsTheStagesThatItStandsFor)
{
    const std::vector<StagePtr> effects = MakeStages(MakeCurves());
    const std::vector<StagePtr> stages = {
        effects[0], std::make_shared<SrgbStage>(ColourSpace::Encoded, GetDefaultIsa()), effects[1]};
    for (const Isa isa : GetSupportedIsas()) {
        const auto table = CurveTableStage::Make(stages, ColourSpace::Encoded, isa);
        ASSERT_TRUE(table);
        Ramp wanted(ColourSpace::Linear);
        Ramp drawn(ColourSpace::Linear);
        for (const StagePtr& stage : stages)
            stage->Run(wanted.GetTile());

        table->Run(drawn.GetTile());

        for (std::size_t c = 0; c < 3; ++c)
            for (std::size_t i = 0; i < Ramp::Count; ++i)
                EXPECT_NEAR(255 * drawn.planes[c][i], 255 * wanted.planes[c][i],
                            CurveTableStage::Tolerance)
                    << GetIsaName(isa) << ", channel " << c << ", entry " << i;
    }
}

TEST(CurveTable, limitsWhatIsFarBeyondWhite)
{
    const auto table =
        CurveTableStage::Make(MakeStages({MakeEffect("contrast", {{"amount", 100}})}),
                              ColourSpace::Linear, GetDefaultIsa());
    ASSERT_TRUE(table);
    alignas(64) float red[4] = {1e30f, -1e30f, INFINITY, 128};
    alignas(64) float green[4] = {};
    alignas(64) float blue[4] = {};

    table->Run({red, green, blue, 4});

    EXPECT_NEAR(red[0], 128.0 * 128 / 0.18, 100);
    EXPECT_FLOAT_EQ(red[1], -red[0]);
    EXPECT_FLOAT_EQ(red[2], red[0]);
    EXPECT_FLOAT_EQ(red[3], red[0]);
    EXPECT_NEAR(green[0], 0, 1e-30);
}

TEST(CurveTable, isRefusedWhereStagesBendTooMuch)
{
    // A square root from a black that is not at the beginning of the octaves.
    const auto stages = MakeStages({MakeEffect(
        "liftGammaGain", {{"offsetRed", -0.1}, {"powerRed", 0.5}, {"powerGreen", 1.0}})});
    EXPECT_FALSE(CurveTableStage::Make(stages, ColourSpace::Encoded, GetDefaultIsa()));
}

TEST(StageChain, makesOneTableOfNeighboursThatTakeEachChannelAlone)
{
    const auto curves = MakeStages(MakeCurves());
    const auto mixer = MakeStages({MakeEffect("vibrance", {{"amount", 20}})});
    const std::vector<StagePtr> stages = {mixer[0], curves[0], curves[1], mixer[0], curves[0]};

    const StageChain chain(stages, GetDefaultIsa(), Image::Depth::Bits8);

    // Vibrance; contrast, encoding, curve, decoding; vibrance; contrast, encoding.
    EXPECT_EQ(chain.GetStages().size(), 4u);
    EXPECT_EQ(chain.GetLastSpace(), ColourSpace::Encoded);
    EXPECT_TRUE(chain.GetLoadingStages().empty());
    EXPECT_EQ(StageChain(stages, GetDefaultIsa(), Image::Depth::Bits16).GetStages().size(), 7u);
}

TEST(StageChain, leavesItsBeginningToTheLoadingOfPixels)
{
    const auto curves = MakeStages(MakeCurves());
    const auto mixer = MakeStages({MakeEffect("vibrance", {{"amount", 20}})});

    const StageChain fromPixels({curves[0], mixer[0]}, GetDefaultIsa(), Image::Depth::Bits8);
    const StageChain fromTiles({curves[0], mixer[0]}, GetDefaultIsa(), Image::Depth::Bits8,
                               ColourSpace::Linear);
    const StageChain ofCurves(curves, GetDefaultIsa(), Image::Depth::Bits8);

    EXPECT_EQ(fromPixels.GetLoadingStages().size(), 1u);
    EXPECT_EQ(fromPixels.GetStages().size(), 1u);
    EXPECT_TRUE(fromTiles.GetLoadingStages().empty());
    EXPECT_EQ(fromTiles.GetStages().size(), 2u);
    EXPECT_EQ(ofCurves.GetLoadingStages().size(), 3u);
    EXPECT_TRUE(ofCurves.GetStages().empty());
}

} // namespace
} // namespace LumetraHost
