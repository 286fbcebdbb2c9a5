// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/engine/TestPictures.h"

#include "engine/run/ColourTable.h"
#include "engine/run/Renderer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <vector>

namespace LumetraHost {
namespace {

using Zorvik::Quindle::EffectList;

/// Reduces encoded values to a few levels.
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

/// Makes encoded values go up and down.
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

std::shared_ptr<const ColourTable> MakeTable(const EffectList& effects,
                                             int points = ColourTable::DragPoints)
{
    return ColourTable::Make(effects, points, GetDefaultIsa(), ThreadPool::GetShared());
}

bool IsRefused(const StagePtr& stage, int points = ColourTable::DragPoints)
{
    return !ColourTable::Make({stage}, points, GetDefaultIsa(), ThreadPool::GetShared());
}

Image DrawWith(std::shared_ptr<const ColourTable> table, const Image& source, int blendAmount = 1)
{
    return Renderer().Render(source, std::move(table), blendAmount);
}

/// The largest difference of all channels, in steps.
int FindDifference(const Image& first, const Image& second)
{
    int largest = 0;
    for (int y = 0; y < first.GetHeight(); ++y)
        for (int x = 0; x < first.GetWidth(); ++x)
            for (int channel = 0; channel < 4; ++channel)
                largest = std::max(largest, std::abs(int(GetChannel(first, x, y, channel)) -
                                                     int(GetChannel(second, x, y, channel))));
    return largest;
}

TEST(ColourTable, isCloseToTheExactRun)
{
    const Image source = MakeRandomPicture(301, 100, Image::Depth::Bits8, 3);
    const Image exact = Renderer().Render(source, MakeSettings(MakeChain()));
    for (const int points : {ColourTable::DragPoints, ColourTable::ExportPoints}) {
        const auto table = MakeTable(MakeChain(), points);
        ASSERT_TRUE(table);
        EXPECT_LE(FindDifference(DrawWith(table, source), exact), 1) << points;
    }
}

/// Takes colours out of the range that the picture can hold, where the encoding bends sharply.
EffectList MakeBendingChain()
{
    // More saturation by 60 per cent, on light.
    return {MakeEffect("contrast", {{"amount", 15}}), MakeEffect("channelMixer", {{"rr", 1.4724},
                                                                                  {"rg", -0.4291},
                                                                                  {"rb", -0.0433},
                                                                                  {"gr", -0.1276},
                                                                                  {"gg", 1.1709},
                                                                                  {"gb", -0.0433},
                                                                                  {"br", -0.1276},
                                                                                  {"bg", -0.4291},
                                                                                  {"bb", 1.5567}})};
}

TEST(ColourTable, refusesWhatBendsInMostOfItsCells)
{
    // The bends of these waves are marked in more than half of 33 cells; 65 follow them.
    EXPECT_TRUE(IsRefused(std::make_shared<WaveStage>(3.0f)));
    EXPECT_FALSE(IsRefused(std::make_shared<WaveStage>(3.0f), ColourTable::ExportPoints));
}

TEST(ColourTable, staysWithinAStepInDragsWhereManyCellsBend)
{
    const auto table = MakeTable(MakeBendingChain());
    ASSERT_TRUE(table);
    const Image source = MakeRandomPicture(601, 500, Image::Depth::Bits8, 8);
    const Image exact = Renderer().Render(source, MakeSettings(MakeBendingChain()));
    EXPECT_LE(FindDifference(DrawWith(table, source), exact), 1);
}

TEST(ColourTable, staysWithinAStepWhereFewCellsBend)
{
    const auto table = MakeTable(MakeBendingChain(), ColourTable::ExportPoints);
    ASSERT_TRUE(table);
    const Image source = MakeRandomPicture(601, 500, Image::Depth::Bits8, 8);
    const Image exact = Renderer().Render(source, MakeSettings(MakeBendingChain()));
    EXPECT_LE(FindDifference(DrawWith(table, source), exact), 1);
}

TEST(ColourTable, mayDrawOnItsSource)
{
    const auto table = MakeTable(MakeBendingChain(), ColourTable::ExportPoints);
    ASSERT_TRUE(table);
    const Image source = MakeRandomPicture(601, 3, Image::Depth::Bits8, 9);
    for (const int blendAmount : {1, 100}) {
        Image picture = source.Clone();
        for (int y = 0; y < picture.GetHeight(); ++y)
            table->RunRow(picture.Row(y), picture.Row(y), picture.GetWidth(), blendAmount);
        EXPECT_TRUE(HaveSamePixels(picture, DrawWith(table, source, blendAmount))) << blendAmount;
    }
}

TEST(ColourTable, loadsTilesOfWhatItDraws)
{
    const auto table = MakeTable(MakeBendingChain(), ColourTable::ExportPoints);
    ASSERT_TRUE(table);
    const Image source = MakeRandomPicture(601, 1, Image::Depth::Bits8, 10);
    const Image drawn = DrawWith(table, source);
    std::vector<float> planes[3];
    for (auto& plane : planes)
        plane.resize(500);
    constexpr int left = 100;
    table->Load({planes[0].data(), planes[1].data(), planes[2].data(), 500, left, 0},
                source.Row(0));
    for (int x = 0; x < 500; ++x)
        for (int channel = 0; channel < 3; ++channel) {
            const float value = planes[channel][static_cast<std::size_t>(x)];
            EXPECT_NEAR(255 * std::clamp(value, 0.0f, 1.0f),
                        GetChannel(drawn, left + x, 0, channel), 0.51)
                << x << ", channel " << channel;
        }
}

TEST(ColourTable, isExactWhereNothingChanges)
{
    for (const int points : {ColourTable::DragPoints, ColourTable::ExportPoints}) {
        const auto table = MakeTable({}, points);
        ASSERT_TRUE(table);
        const Image source = MakeRandomPicture(257, 64, Image::Depth::Bits8, 4);
        EXPECT_TRUE(HaveSamePixels(DrawWith(table, source), source)) << points;
    }
}

TEST(ColourTable, isAlmostTheSameForAllInstructionSets)
{
    const Image source = MakeRandomPicture(301, 40, Image::Depth::Bits8, 5);
    Image first;
    for (const Isa isa : GetSupportedIsas()) {
        const auto table =
            ColourTable::Make(MakeChain(), ColourTable::DragPoints, isa, ThreadPool::GetShared());
        ASSERT_TRUE(table);
        const Image drawn = DrawWith(table, source);
        // An entry may be rounded the other way.
        EXPECT_TRUE(first.IsNull() || FindDifference(first, drawn) <= 1) << GetIsaName(isa);
        first = drawn;
    }
}

TEST(ColourTable, isBlendedWithTheSource)
{
    const auto table = MakeTable(MakeChain());
    ASSERT_TRUE(table);
    const Image source = MakeRandomPicture(301, 40, Image::Depth::Bits8, 6);
    const Image blended = DrawWith(table, source, 100);
    EXPECT_TRUE(
        HaveSamePixels(blended, Renderer().Interpolate(source, DrawWith(table, source), 100)));
}

TEST(ColourTable, refusesRunsThatJump)
{
    for (const float levels : {2.0f, 4.0f, 8.0f, 32.0f, 100.0f})
        for (const int points : {ColourTable::DragPoints, ColourTable::ExportPoints})
            EXPECT_TRUE(IsRefused(std::make_shared<PosteriseStage>(levels), points)) << levels;
}

TEST(ColourTable, refusesWhatATableOfItsSizeCannotFollow)
{
    EXPECT_TRUE(IsRefused(std::make_shared<WaveStage>(8.0f)));
    EXPECT_FALSE(IsRefused(std::make_shared<WaveStage>(0.3f)));
}

TEST(ColourTable, refusesEffectsThatLookAtMoreThanTheColour)
{
    EXPECT_FALSE(MakeTable({MakeEffect("vignette", {{"amount", -0.01}})}));
    EXPECT_FALSE(MakeTable({MakeEffect("grain", {{"amount", 1}})}));
    EXPECT_FALSE(MakeTable({MakeEffect("clarity", {{"amount", 1}})}));
    EXPECT_FALSE(MakeTable(
        {MakeEffect("exposure", {{"stops", 0.1}}), MakeEffect("gaussianBlur", {{"radius", 0.1}})}));
}

TEST(ColourTable, isGivenUpWhenItIsCancelled)
{
    CancelToken cancel;
    cancel.Cancel();
    EXPECT_FALSE(ColourTable::Make(MakeChain(), ColourTable::DragPoints, GetDefaultIsa(),
                                   ThreadPool::GetShared(), &cancel));
    const Image source = MakeRandomPicture(30, 30, Image::Depth::Bits8, 7);
    const auto table = MakeTable(MakeChain());
    ASSERT_TRUE(table);
    RenderOptions options;
    options.cancel = &cancel;
    EXPECT_TRUE(Renderer().Render(source, table, 1, options).IsNull());
}

} // namespace
} // namespace LumetraHost
