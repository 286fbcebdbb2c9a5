// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/engine/TestPictures.h"

#include "engine/effects/EffectKinds.h"
#include "engine/run/Renderer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

namespace LumetraHost {
namespace {

using Zorvik::Quindle::EffectsSettings;

std::vector<const EffectKind*> FindKinds(bool areOfWholePicture)
{
    std::vector<const EffectKind*> kinds;
    for (const EffectKind& kind : EffectKinds::GetAll())
        if ((kind.reach == EffectReach::WholePicture) == areOfWholePicture)
            kinds.push_back(&kind);
    return kinds;
}

// Makes values that go past the ranges a little; every fifth parameter stays at its default.
Zorvik::Quindle::EffectPtr MakeRandomEffect(const EffectKind* kind, std::mt19937& random)
{
    const auto effect = MakeEffect(kind->descriptor.effectID, {});
    for (const auto& parameter : kind->descriptor.parameters) {
        std::uniform_real_distribution<double> value(parameter.minimum * 1.1,
                                                     parameter.maximum * 1.1);
        if (random() % 5 != 0)
            effect->SetParameter(parameter.name, value(random));
    }
    return effect;
}

/// Puts an effect that looks at the whole picture anywhere into one of two chains.
void AddEffectOfWholePicture(EffectsSettings& chain, std::mt19937& random)
{
    if (random() % 2 == 0)
        return;
    auto& effects = chain.Effects();
    const auto kinds = FindKinds(true);
    const auto place =
        effects.begin() + static_cast<std::ptrdiff_t>(random() % (effects.size() + 1));
    effects.insert(place, MakeRandomEffect(kinds[random() % kinds.size()], random));
}

EffectsSettings MakeRandomChain(std::mt19937& random)
{
    const auto kinds = FindKinds(false);
    EffectsSettings chain(1);
    const std::size_t count = 1 + random() % 6;
    for (std::size_t i = 0; i < count; ++i) {
        chain.Effects().push_back(MakeRandomEffect(kinds[random() % kinds.size()], random));
    }
    chain.SetBlendAmount(random() % 3 == 0 ? 1 : int(random() % 256));
    return chain;
}

/// How many of the channels' values differ, and by how many steps at most.
struct Differences
{
    double perMillion = 0;
    unsigned largest = 0;
};

void AddDifferences(const Image& first, const Image& second, Differences& differences)
{
    for (int y = 0; y < first.GetHeight(); ++y)
        for (int x = 0; x < first.GetWidth(); ++x)
            for (int channel = 0; channel < 3; ++channel) {
                const unsigned one = GetChannel(first, x, y, channel);
                const unsigned other = GetChannel(second, x, y, channel);
                const unsigned difference = std::max(one, other) - std::min(one, other);
                differences.perMillion += difference > 0 ? 1 : 0;
                differences.largest = std::max(differences.largest, difference);
            }
}

class RandomChains : public testing::TestWithParam<Image::Depth>
{
protected:
    template <class Compare>
    void RenderBoth(const RenderOptions& first, const RenderOptions& second, Compare compare)
    {
        std::mt19937 random(2024);
        std::mt19937 others(14);
        ThreadPool pool(3);
        const Renderer renderer(pool);
        for (int round = 0; round < 40; ++round) {
            const int width = 1 + int(random() % 700);
            const int height = 1 + int(random() % 130);
            SCOPED_TRACE(testing::Message()
                         << "round " << round << ", " << width << " x " << height);
            const Image source = MakeRandomPicture(width, height, GetParam(), unsigned(round));
            EffectsSettings chain = MakeRandomChain(random);
            AddEffectOfWholePicture(chain, others);
            compare(renderer.Render(source, chain, first), renderer.Render(source, chain, second));
        }
    }

    void ExpectSamePixels(const RenderOptions& first, const RenderOptions& second)
    {
        RenderBoth(first, second, [](const Image& one, const Image& other) {
            EXPECT_TRUE(HaveSamePixels(one, other));
        });
    }

    Differences CompareChains(const RenderOptions& first, const RenderOptions& second)
    {
        Differences differences;
        double values = 0;
        RenderBoth(first, second, [&](const Image& one, const Image& other) {
            values += 3.0 * one.GetWidth() * one.GetHeight();
            AddDifferences(one, other, differences);
        });
        differences.perMillion *= 1e6 / values;
        return differences;
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

// Fused multiply-add rounds once less. Steep chains make more of it.
TEST_P(RandomChains, areAlmostTheSameOnAllInstructionSets)
{
    for (const Isa isa : GetSupportedIsas()) {
        SCOPED_TRACE(GetIsaName(isa));
        const Differences differences =
            CompareChains(MakeOptions(1, 2048, Isa::Baseline), MakeOptions(1, 2048, isa));
        RecordProperty(std::string("othersPerMillion ") + GetIsaName(isa),
                       std::to_string(differences.perMillion));
        RecordProperty(std::string("largest ") + GetIsaName(isa), int(differences.largest));
        const bool is8 = GetParam() == Image::Depth::Bits8;
        EXPECT_LE(differences.largest, is8 ? 1u : 64u);
        EXPECT_LE(differences.perMillion, is8 ? 100 : 2000);
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
