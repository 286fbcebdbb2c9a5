// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/engine/TestPictures.h"

#include "engine/run/RenderPlan.h"
#include "engine/stages/MatrixStage.h"
#include "engine/stages/StageChain.h"

#include <gtest/gtest.h>

namespace LumetraHost {
namespace {

using Zorvik::Quindle::EffectList;

/// A stage that scales values of one space, with or without a matrix.
StagePtr MakeScale(double factor, ColourSpace space)
{
    return std::make_shared<MatrixStage>(ColourMatrix::Diagonal(factor, factor, factor), space,
                                         GetDefaultIsa());
}

TEST(StageChain, multipliesNeighbouringMatricesOfOneSpace)
{
    ColourMatrix mixer;
    mixer.rows[0][1] = 0.25;
    const auto mix = std::make_shared<MatrixStage>(mixer, ColourSpace::Linear, GetDefaultIsa());

    const StageChain chain(
        {MakeScale(2, ColourSpace::Linear), mix, MakeScale(3, ColourSpace::Linear)},
        GetDefaultIsa(), Image::Depth::Bits16);

    ASSERT_EQ(chain.GetStages().size(), 1u);
    const auto matrix = chain.GetStages().front()->GetMatrix();
    ASSERT_TRUE(matrix);
    EXPECT_EQ(matrix->rows[0][0], 6);
    EXPECT_EQ(matrix->rows[0][1], 1.5);
}

TEST(StageChain, putsOneConversionBetweenStagesOfDifferentSpaces)
{
    const StageChain chain({MakeScale(2, ColourSpace::Linear), MakeScale(0.5, ColourSpace::Encoded),
                            MakeScale(0.5, ColourSpace::Encoded),
                            MakeScale(3, ColourSpace::Linear)},
                           GetDefaultIsa(), Image::Depth::Bits16);

    ASSERT_EQ(chain.GetStages().size(), 5u);
    EXPECT_EQ(chain.GetStages()[1]->GetColourSpace(), ColourSpace::Linear);
    EXPECT_EQ(chain.GetStages()[3]->GetColourSpace(), ColourSpace::Encoded);
}

std::vector<StagePtr> MakeStages(const EffectList& effects, Image::Depth depth)
{
    return RenderPlan(effects, {GetDefaultIsa(), PictureArea::Whole(1, 1), depth}).GetFirstStages();
}

TEST(StageChain, isCutBehindAnyStageThatIsMergedWithNoOther)
{
    const auto stages = MakeStages({MakeEffect("vibrance", {{"amount", 20}}),
                                    MakeEffect("vignette", {{"amount", 1}}),
                                    MakeEffect("vibrance", {{"amount", 30}})},
                                   Image::Depth::Bits8);
    for (std::size_t wish = 0; wish <= 3; ++wish)
        EXPECT_EQ(StageChain::FindCut(stages, wish, Image::Depth::Bits8), wish);
    EXPECT_EQ(StageChain::FindCut(stages, 9, Image::Depth::Bits8), 3u);
}

TEST(StageChain, isCutInFrontOfNeighbouringMatrices)
{
    const auto stages = MakeStages({MakeEffect("vibrance", {{"amount", 20}}),
                                    MakeEffect("exposure", {{"stops", 0.4}}),
                                    MakeEffect("channelMixer", {{"rg", 0.1}})},
                                   Image::Depth::Bits16);
    EXPECT_EQ(StageChain::FindCut(stages, 2, Image::Depth::Bits16), 1u);
    EXPECT_EQ(StageChain::FindCut(stages, 3, Image::Depth::Bits16), 3u);
}

// With 8 bits stages become one table, and the last of them the one that pixels are stored with.
TEST(StageChain, isCutInFrontOfStagesThatTakeEachChannelAlone)
{
    const EffectList effects = {MakeEffect("vibrance", {{"amount", 20}}),
                                MakeEffect("contrast", {{"amount", 20}}),
                                MakeEffect("liftGammaGain", {{"slopeRed", 1.1}})};
    for (const std::size_t wish : {1u, 2u, 3u}) {
        EXPECT_EQ(StageChain::FindCut(MakeStages(effects, Image::Depth::Bits8), wish,
                                      Image::Depth::Bits8),
                  1u);
        EXPECT_EQ(StageChain::FindCut(MakeStages(effects, Image::Depth::Bits16), wish,
                                      Image::Depth::Bits16),
                  wish);
    }
}

TEST(StageChain, goesOnOnlyInTheSpaceThatTilesHaveAtTheCut)
{
    const auto stages = MakeStages(
        {MakeEffect("vibrance", {{"amount", 20}}), MakeEffect("vignette", {{"amount", 1}})},
        Image::Depth::Bits8);
    const ColourSpace space = StageChain::GetSpaceAtCut(stages, 1, Image::Depth::Bits8);
    const ColourSpace other =
        space == ColourSpace::Linear ? ColourSpace::Encoded : ColourSpace::Linear;
    EXPECT_TRUE(StageChain::CanGoOnAt(stages, 1, space, Image::Depth::Bits8));
    EXPECT_FALSE(StageChain::CanGoOnAt(stages, 1, other, Image::Depth::Bits8));
}

} // namespace
} // namespace LumetraHost
