// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/engine/TestPictures.h"

#include "engine/base/Srgb.h"
#include "engine/run/Segment.h"
#include "engine/stages/MatrixStage.h"
#include "engine/stages/SrgbStage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace LumetraHost {
namespace {

/// Doubles the values of one space, and can say so as a matrix or not.
StagePtr MakeScale(double factor, ColourSpace space)
{
    return std::make_shared<MatrixStage>(ColourMatrix::Diagonal(factor, factor, factor), space,
                                         GetDefaultIsa());
}

SegmentOptions MakeOptions()
{
    SegmentOptions options;
    options.isa = GetDefaultIsa();
    return options;
}

TEST(Segment, multipliesNeighbouringMatricesOfOneSpace)
{
    ColourMatrix mixer;
    mixer.rows[0][1] = 0.25;
    const auto mix = std::make_shared<MatrixStage>(mixer, ColourSpace::Linear, GetDefaultIsa());

    const Segment segment(
        {MakeScale(2, ColourSpace::Linear), mix, MakeScale(3, ColourSpace::Linear)}, MakeOptions());

    ASSERT_EQ(segment.GetStages().size(), 1u);
    const auto matrix = segment.GetStages().front()->GetMatrix();
    ASSERT_TRUE(matrix);
    EXPECT_EQ(matrix->rows[0][0], 6);
    EXPECT_EQ(matrix->rows[0][1], 1.5);
}

TEST(Segment, putsOneConversionBetweenStagesOfDifferentSpaces)
{
    const Segment segment({MakeScale(2, ColourSpace::Linear), MakeScale(0.5, ColourSpace::Encoded),
                           MakeScale(0.5, ColourSpace::Encoded), MakeScale(3, ColourSpace::Linear)},
                          MakeOptions());

    ASSERT_EQ(segment.GetStages().size(), 5u);
    EXPECT_EQ(segment.GetStages()[1]->GetColourSpace(), ColourSpace::Linear);
    EXPECT_EQ(segment.GetStages()[3]->GetColourSpace(), ColourSpace::Encoded);
}

TEST(Segment, worksInEncodedSpaceWhereStagesAskForIt)
{
    for (const auto depth : {Image::Depth::Bits8, Image::Depth::Bits16}) {
        const Image source = MakeRandomPicture(200, 40, depth, 4);
        const double white = GetWhite(source);
        const double slack = depth == Image::Depth::Bits16 ? 0.2 : 0.02;
        ThreadPool pool(0);
        for (const bool endsEncoded : {true, false}) {
            std::vector<StagePtr> stages = {MakeScale(0.5, ColourSpace::Encoded),
                                            MakeScale(1.7, ColourSpace::Linear),
                                            MakeScale(1.2, ColourSpace::Encoded)};
            if (!endsEncoded)
                stages.push_back(MakeScale(0.9, ColourSpace::Linear));
            Image target = source.Clone();
            const Segment segment(stages, MakeOptions());

            ASSERT_TRUE(segment.Run(source, target, pool));

            double largest = 0;
            for (int x = 0; x < 200; ++x) {
                const double half = 0.5 * GetChannel(source, x, 7, 1) / white;
                double encoded = 1.2 * LinearToSrgb(1.7 * SrgbToLinear(half));
                if (!endsEncoded)
                    encoded = LinearToSrgb(0.9 * SrgbToLinear(encoded));
                const double exact = white * std::min(encoded, 1.0);
                largest = std::max(largest, std::abs(exact - GetChannel(target, x, 7, 1)));
            }
            EXPECT_LE(largest, 0.5 + slack) << endsEncoded;
        }
    }
}

TEST(SrgbStage, convertsUnclampedAndMirroredAtZero)
{
    alignas(64) float red[] = {-0.5f, -0.001f, 0.0f, 0.0005f, 0.04f, 0.3f, 1.0f, 4.0f};
    alignas(64) float green[8] = {};
    alignas(64) float blue[8] = {};
    const std::vector<double> linear(std::begin(red), std::end(red));
    const Tile tile{red, green, blue, 8, 0, 0};

    SrgbStage(ColourSpace::Encoded, GetDefaultIsa()).Run(tile);
    for (std::size_t i = 0; i < 8; ++i)
        EXPECT_NEAR(red[i], LinearToSrgb(linear[i]), 1e-6) << linear[i];

    SrgbStage(ColourSpace::Linear, GetDefaultIsa()).Run(tile);
    for (std::size_t i = 0; i < 8; ++i)
        EXPECT_NEAR(red[i], linear[i], 4e-6 * std::max(1.0, std::abs(linear[i])));
}

TEST(Srgb, agreesWithTheStandardAtKnownValues)
{
    EXPECT_DOUBLE_EQ(SrgbToLinear(0), 0);
    EXPECT_DOUBLE_EQ(SrgbToLinear(1), 1);
    EXPECT_NEAR(SrgbToLinear(0.5), 0.2140411404, 1e-9);
    EXPECT_NEAR(LinearToSrgb(0.18), 0.4613561295, 1e-9);
    EXPECT_NEAR(LinearToSrgb(SrgbToLinear(0.02)), 0.02, 1e-12);
}

TEST(Srgb, survivesDecodingAndEncodingOfEveryValue)
{
    for (const auto depth : {Image::Depth::Bits8, Image::Depth::Bits16}) {
        const int levels = depth == Image::Depth::Bits16 ? 65536 : 256;
        Image source = Image::Allocate(levels, 1, depth);
        for (int i = 0; i < levels; ++i)
            for (int c = 0; c < 4; ++c)
                if (depth == Image::Depth::Bits16)
                    source.Row16(0)[4 * i + c] = static_cast<std::uint16_t>(i);
                else
                    source.Row(0)[4 * i + c] = static_cast<std::uint8_t>(i);
        for (const Isa isa : GetSupportedIsas()) {
            SegmentOptions options;
            options.isa = isa;
            Image target = Image::Allocate(levels, 1, depth);
            ThreadPool pool(0);
            Segment({}, options).Run(source, target, pool);
            EXPECT_TRUE(HaveSamePixels(source, target)) << levels << " " << GetIsaName(isa);
        }
    }
}

TEST(ColourMatrix, invertsItself)
{
    const ColourMatrix matrix = {{{{2, 1, 0}, {0.5, -1, 3}, {1, 0, 1}}}};
    const ColourMatrix product = matrix * matrix.Inverse();
    for (std::size_t i = 0; i < 3; ++i)
        for (std::size_t j = 0; j < 3; ++j)
            EXPECT_NEAR(product.rows[i][j], i == j ? 1 : 0, 1e-12);
}

} // namespace
} // namespace LumetraHost
