// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/engine/TestPictures.h"

#include "engine/effects/EffectKinds.h"
#include "engine/stages/StageChain.h"
#include "engine/stages/StoreTable.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <vector>

namespace LumetraHost {
namespace {

StagePtr MakeStage(const Zorvik::Quindle::EffectPtr& effect, Isa isa = GetDefaultIsa())
{
    return EffectKinds::Find(effect->GetEffectID())
        ->createStage(*effect, {isa, PictureArea::Whole(1, 1)});
}

StagePtr MakeGrading(Isa isa = GetDefaultIsa())
{
    return MakeStage(
        MakeEffect("liftGammaGain", {{"slopeRed", 1.2}, {"offsetBlue", 0.02}, {"powerGreen", 0.9}}),
        isa);
}

/// A stage that draws one line in all channels.
StagePtr MakeLine(double slope, double offset)
{
    return MakeStage(MakeEffect("liftGammaGain", {{"slopeRed", slope},
                                                  {"slopeGreen", slope},
                                                  {"slopeBlue", slope},
                                                  {"offsetRed", offset},
                                                  {"offsetGreen", offset},
                                                  {"offsetBlue", offset}}));
}

/// Encoded values from -0.7 to 1.8, another order in each channel.
struct Values
{
    static constexpr int Count = 5003;

    Values()
    {
        for (int channel = 0; channel < 3; ++channel)
            for (int i = 0; i < Count; ++i)
                planes[channel][std::size_t(i)] =
                    float(-0.7 + 2.5 * ((i * (channel + 1)) % Count) / (Count - 1));
    }
    Tile GetTile() { return {planes[0].data(), planes[1].data(), planes[2].data(), Count}; }

    alignas(64) std::array<std::array<float, Count>, 3> planes;
};

TEST(StoreTable, storesWhatTheStagesGive)
{
    for (const Isa isa : GetSupportedIsas()) {
        const StagePtr stage = MakeGrading(isa);
        const auto table = StoreTable::Make({stage}, isa);
        ASSERT_TRUE(table) << GetIsaName(isa);
        Values wanted;
        Values values;
        stage->Run(wanted.GetTile());
        std::vector<std::uint8_t> pixels(4 * Values::Count);

        table->Store(values.GetTile(), pixels.data(), pixels.data());

        for (std::size_t i = 0; i < Values::Count; ++i)
            for (std::size_t channel = 0; channel < 3; ++channel)
                ASSERT_NEAR(pixels[4 * i + channel],
                            255 * std::clamp(wanted.planes[channel][i], 0.0f, 1.0f),
                            0.5 + StoreTable::Tolerance + 1e-4)
                    << GetIsaName(isa) << ", channel " << channel << ", entry " << i;
    }
}

TEST(StoreTable, keepsTheAlphaOfTheSource)
{
    Values values;
    std::vector<std::uint8_t> source(4 * Values::Count);
    std::vector<std::uint8_t> target(4 * Values::Count);
    for (std::size_t i = 0; i < Values::Count; ++i)
        source[4 * i + 3] = std::uint8_t(i % 256);

    StoreTable::Make({MakeGrading()}, GetDefaultIsa())
        ->Store(values.GetTile(), source.data(), target.data());

    for (std::size_t i = 0; i < Values::Count; ++i)
        ASSERT_EQ(target[4 * i + 3], i % 256);
}

TEST(StoreTable, limitsWhatIsFarOutside)
{
    alignas(64) float red[4] = {1e30f, -1e30f, INFINITY, -INFINITY};
    alignas(64) float green[4] = {1.5f, -0.5f, 1.0f, 0.0f};
    alignas(64) float blue[4] = {};
    std::uint8_t pixels[16] = {};

    StoreTable::Make({MakeGrading()}, GetDefaultIsa())
        ->Store({red, green, blue, 4}, pixels, pixels);

    EXPECT_EQ(pixels[0], 255);
    EXPECT_EQ(pixels[4], 0);
    EXPECT_EQ(pixels[8], 255);
    EXPECT_EQ(pixels[12], 0);
    EXPECT_EQ(pixels[1], 255);
    EXPECT_EQ(pixels[5], 0);
    EXPECT_EQ(pixels[9], 255);
    EXPECT_EQ(pixels[13], 0);
    EXPECT_EQ(pixels[2], 5); // 255 * 0.02
}

TEST(StoreTable, isRefusedWhereColoursBeyondItAreNeitherBlackNorWhite)
{
    EXPECT_TRUE(StoreTable::Make({MakeLine(0.8, 0.0)}, GetDefaultIsa()));
    EXPECT_FALSE(StoreTable::Make({MakeLine(0.5, 0.0)}, GetDefaultIsa()));
    EXPECT_FALSE(StoreTable::Make({MakeLine(1.0, 0.6)}, GetDefaultIsa()));
}

TEST(StoreTable, isRefusedWhereStagesAreTooSteep)
{
    EXPECT_TRUE(StoreTable::Make({MakeLine(3.0, 0.0)}, GetDefaultIsa()));
    EXPECT_FALSE(StoreTable::Make({MakeLine(4.0, 0.0)}, GetDefaultIsa()));
}

TEST(StageChain, leavesItsEndToTheStoringOfPixels)
{
    const StagePtr mixer = MakeStage(MakeEffect("saturation", {{"amount", 20}}));
    const StagePtr linearMixer = MakeStage(MakeEffect("channelMixer", {{"rg", 0.1}}));
    const auto make = [](const std::vector<StagePtr>& stages, Image::Depth depth, ChainEnd end) {
        return StageChain(stages, GetDefaultIsa(), depth, {}, {}, end);
    };
    constexpr auto bits8 = Image::Depth::Bits8;

    const StageChain toPixels = make({mixer, MakeGrading()}, bits8, ChainEnd::Pixels);
    const StageChain toTiles = make({mixer, MakeGrading()}, bits8, ChainEnd::Tiles);
    const StageChain deep = make({mixer, MakeGrading()}, Image::Depth::Bits16, ChainEnd::Pixels);
    const StageChain fromLinear = make({linearMixer, MakeGrading()}, bits8, ChainEnd::Pixels);
    const StageChain mixedLast = make({MakeGrading(), mixer}, bits8, ChainEnd::Pixels);

    EXPECT_TRUE(toPixels.GetStoreTable());
    EXPECT_EQ(toPixels.GetStages().size(), 1u);
    EXPECT_FALSE(toTiles.GetStoreTable());
    EXPECT_EQ(toTiles.GetStages().size(), 2u);
    EXPECT_FALSE(deep.GetStoreTable());
    EXPECT_FALSE(fromLinear.GetStoreTable());
    EXPECT_FALSE(mixedLast.GetStoreTable());
}

} // namespace
} // namespace LumetraHost
