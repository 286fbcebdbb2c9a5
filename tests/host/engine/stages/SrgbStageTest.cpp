// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/engine/TestPictures.h"

#include "engine/run/PictureRun.h"
#include "engine/stages/SrgbStage.h"
#include "image/Srgb.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <vector>

namespace LumetraHost {
namespace {

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
            PictureRunForm form;
            form.width = levels;
            form.height = 1;
            form.depth = depth;
            form.isa = isa;
            Image target = Image::Allocate(levels, 1, depth);
            ThreadPool pool(0);
            PictureRun(RenderPlan({}, {isa, PictureArea::Whole(levels, 1), depth}), form)
                .Draw(source, target, pool, nullptr);
            EXPECT_TRUE(HaveSamePixels(source, target)) << levels << " " << GetIsaName(isa);
        }
    }
}

} // namespace
} // namespace LumetraHost
