// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/engine/TestPictures.h"

#include "engine/Renderer.h"
#include "engine/bake/BakedRun.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>

namespace LumetraHost {
namespace {

using Zorvik::Quindle::EffectList;

/// Encoded values in a few levels only.
class PosteriseStage : public Stage
{
public:
    explicit PosteriseStage(float levels) : m_levels(levels) {}

    void Run(const Tile& tile) const override
    {
        for (float* const plane : {tile.red, tile.green, tile.blue})
            for (int i = 0; i < tile.count; ++i)
                plane[i] = std::floor(plane[i] * m_levels) / m_levels;
    }
    ColourSpace GetColourSpace() const override { return ColourSpace::Encoded; }

private:
    float m_levels;
};

/// Encoded values go up and down.
class WaveStage : public Stage
{
public:
    explicit WaveStage(float waves) : m_waves(waves) {}

    void Run(const Tile& tile) const override
    {
        for (int i = 0; i < tile.count; ++i)
            tile.green[i] += 0.1f * std::sin(6.2832f * m_waves * tile.green[i]);
    }
    ColourSpace GetColourSpace() const override { return ColourSpace::Encoded; }

private:
    float m_waves;
};

EffectList MakeChain()
{
    return {MakeEffect("exposure", {{"stops", 0.2}}), MakeEffect("contrast", {{"amount", 4}}),
            MakeEffect("liftGammaGain",
                       {{"slopeRed", 1.05}, {"offsetBlue", 0.01}, {"powerGreen", 1.03}})};
}

std::shared_ptr<const BakedRun> Bake(const EffectList& effects, int points = BakedRun::DragPoints)
{
    return BakedRun::Make(effects, points, GetDefaultIsa(), ThreadPool::GetShared());
}

bool IsRefused(const StagePtr& stage)
{
    return !BakedRun::Make({stage}, BakedRun::DragPoints, GetDefaultIsa(), ThreadPool::GetShared());
}

Image DrawWith(const BakedRun& baked, const Image& source, int blendAmount = 1)
{
    Image target = Image::Allocate(source.GetWidth(), source.GetHeight(), source.GetDepth());
    EXPECT_TRUE(baked.Run(source, target, blendAmount, ThreadPool::GetShared()));
    return target;
}

/// In steps, with the share of the channels that are off by more than one.
struct Difference
{
    int largest = 0;
    double beyondOne = 0;
};

Difference Compare(const Image& first, const Image& second)
{
    Difference difference;
    const int width = first.GetWidth();
    const int height = first.GetHeight();
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            for (int channel = 0; channel < 4; ++channel) {
                const int off = std::abs(int(GetChannel(first, x, y, channel)) -
                                         int(GetChannel(second, x, y, channel)));
                difference.largest = std::max(difference.largest, off);
                difference.beyondOne += off > 1 ? 1.0 / (4.0 * width * height) : 0.0;
            }
    return difference;
}

TEST(BakedRun, isCloseToTheExactRun)
{
    const Image source = MakeRandomPicture(301, 100, Image::Depth::Bits8, 3);
    const Image exact = Renderer().Render(source, MakeSettings(MakeChain()));
    for (const int points : {BakedRun::DragPoints, BakedRun::ExportPoints}) {
        const auto baked = Bake(MakeChain(), points);
        ASSERT_TRUE(baked);
        const Difference difference = Compare(DrawWith(*baked, source), exact);
        EXPECT_LE(difference.largest, 2) << points;
        EXPECT_LE(difference.beyondOne, 0.001) << points;
    }
}

// Where colours leave the range that the picture can hold the encoding bends sharply.
TEST(BakedRun, refusesWhatBendsWithinItsCells)
{
    EXPECT_FALSE(Bake(
        {MakeEffect("contrast", {{"amount", 15}}), MakeEffect("saturation", {{"amount", 60}})}));
}

TEST(BakedRun, isExactWhereNothingChanges)
{
    for (const int points : {BakedRun::DragPoints, BakedRun::ExportPoints}) {
        const auto baked = Bake({}, points);
        ASSERT_TRUE(baked);
        const Image source = MakeRandomPicture(257, 64, Image::Depth::Bits8, 4);
        EXPECT_TRUE(HaveSamePixels(DrawWith(*baked, source), source)) << points;
    }
}

TEST(BakedRun, isTheSameForAllInstructionSets)
{
    const Image source = MakeRandomPicture(301, 40, Image::Depth::Bits8, 5);
    Image first;
    for (const Isa isa : GetSupportedIsas()) {
        const auto baked =
            BakedRun::Make(MakeChain(), BakedRun::DragPoints, isa, ThreadPool::GetShared());
        ASSERT_TRUE(baked);
        const Image drawn = DrawWith(*baked, source);
        EXPECT_TRUE(first.IsNull() || HaveSamePixels(first, drawn)) << GetIsaName(isa);
        first = drawn;
    }
}

TEST(BakedRun, isBlendedWithTheSource)
{
    const auto baked = Bake(MakeChain());
    ASSERT_TRUE(baked);
    const Image source = MakeRandomPicture(301, 40, Image::Depth::Bits8, 6);
    const Image blended = DrawWith(*baked, source, 100);
    EXPECT_TRUE(
        HaveSamePixels(blended, Renderer().Interpolate(source, DrawWith(*baked, source), 100)));
}

TEST(BakedRun, refusesRunsThatJump)
{
    for (const float levels : {2.0f, 4.0f, 8.0f, 32.0f, 100.0f})
        EXPECT_TRUE(IsRefused(std::make_shared<PosteriseStage>(levels))) << levels;
}

TEST(BakedRun, refusesWhatATableOfItsSizeCannotFollow)
{
    EXPECT_TRUE(IsRefused(std::make_shared<WaveStage>(8.0f)));
    EXPECT_FALSE(IsRefused(std::make_shared<WaveStage>(0.3f)));
}

TEST(BakedRun, refusesEffectsThatLookAtMoreThanTheColour)
{
    EXPECT_FALSE(Bake({MakeEffect("vignette", {{"amount", -0.01}})}));
    EXPECT_FALSE(Bake({MakeEffect("grain", {{"amount", 1}})}));
    EXPECT_FALSE(Bake({MakeEffect("clarity", {{"amount", 1}})}));
    EXPECT_FALSE(Bake(
        {MakeEffect("exposure", {{"stops", 0.1}}), MakeEffect("gaussianBlur", {{"radius", 0.1}})}));
}

TEST(BakedRun, isGivenUpWhenItIsCancelled)
{
    CancelToken cancel;
    cancel.Cancel();
    EXPECT_FALSE(BakedRun::Make(MakeChain(), BakedRun::DragPoints, GetDefaultIsa(),
                                ThreadPool::GetShared(), &cancel));
    const Image source = MakeRandomPicture(30, 30, Image::Depth::Bits8, 7);
    Image target = source.Clone();
    const auto baked = Bake(MakeChain());
    ASSERT_TRUE(baked);
    EXPECT_FALSE(baked->Run(source, target, 1, ThreadPool::GetShared(), &cancel));
}

} // namespace
} // namespace LumetraHost
