// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/engine/TestPictures.h"

#include "engine/EffectKinds.h"
#include "engine/Renderer.h"

#include <gtest/gtest.h>

#include <random>

namespace LumetraHost {
namespace {

using Zorvik::Quindle::EffectsSettings;

// Values go past the ranges a little, and every fifth parameter stays at its default.
EffectsSettings MakeRandomChain(std::mt19937& random)
{
    const auto& kinds = EffectKinds::GetAll();
    EffectsSettings chain(1);
    const std::size_t count = 1 + random() % 6;
    for (std::size_t i = 0; i < count; ++i) {
        const auto& descriptor = kinds[random() % kinds.size()].descriptor;
        const auto effect = MakeEffect(descriptor.effectID, {});
        for (const auto& parameter : descriptor.parameters) {
            std::uniform_real_distribution<double> value(parameter.minimum * 1.1,
                                                         parameter.maximum * 1.1);
            if (random() % 5 != 0)
                effect->SetParameter(parameter.name, value(random));
        }
        chain.Effects().push_back(effect);
    }
    chain.SetBlendAmount(random() % 3 == 0 ? 1 : int(random() % 256));
    return chain;
}

class RandomChains : public testing::TestWithParam<Image::Depth>
{
protected:
    void ExpectSamePixels(const RenderOptions& first, const RenderOptions& second)
    {
        std::mt19937 random(2024);
        ThreadPool pool(3);
        const Renderer renderer(pool);
        for (int round = 0; round < 40; ++round) {
            const int width = 1 + int(random() % 700);
            const int height = 1 + int(random() % 130);
            const Image source = MakeRandomPicture(width, height, GetParam(), unsigned(round));
            const EffectsSettings chain = MakeRandomChain(random);
            ASSERT_TRUE(HaveSamePixels(renderer.Render(source, chain, first),
                                       renderer.Render(source, chain, second)))
                << "round " << round << ", " << width << " x " << height;
        }
    }
};

INSTANTIATE_TEST_SUITE_P(Depths, RandomChains,
                         testing::Values(Image::Depth::Bits8, Image::Depth::Bits16));

RenderOptions MakeOptions(int threads, int tilePixels, Isa isa = GetDefaultIsa())
{
    RenderOptions options;
    options.threads = threads;
    options.tilePixels = tilePixels;
    options.isa = isa;
    return options;
}

TEST_P(RandomChains, areTheSameOnOneAndOnSeveralThreads)
{
    ExpectSamePixels(MakeOptions(1, 2048), MakeOptions(2, 2048));
    ExpectSamePixels(MakeOptions(1, 2048), MakeOptions(4, 2048));
}

TEST_P(RandomChains, areTheSameForAllTileSizes)
{
    for (const int tilePixels : {1, 64, 65, 333, 512, 1 << 20})
        ExpectSamePixels(MakeOptions(2, 2048), MakeOptions(2, tilePixels));
}

TEST_P(RandomChains, areTheSameOnAllInstructionSets)
{
    for (const Isa isa : GetSupportedIsas()) {
        SCOPED_TRACE(GetIsaName(isa));
        ExpectSamePixels(MakeOptions(1, 2048, Isa::Baseline), MakeOptions(1, 2048, isa));
    }
}

TEST(Isa, fallsBackToWhatTheProcessorSupports)
{
    EXPECT_EQ(LimitToSupported(Isa::Baseline), Isa::Baseline);
    EXPECT_EQ(LimitToSupported(Isa::V4), GetSupportedIsas().back());
    EXPECT_EQ(GetSupportedIsas().front(), Isa::Baseline);
}

} // namespace
} // namespace LumetraHost
