// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/engine/ReferenceEffects.h"
#include "host/engine/TestPictures.h"

#include "engine/run/Renderer.h"

#include "Zorvik/Quindle/EffectRegistry.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

namespace LumetraHost {
namespace {

using Zorvik::Quindle::EffectList;
using Zorvik::Quindle::EffectParameter;
using Zorvik::Quindle::EffectRegistry;

using Names = std::vector<const char*>;

const Names ColourEffects = {
    "exposure", "whiteBalance", "contrast",      "toneRegions", "toneCurve",     "saturation",
    "vibrance", "channelMixer", "blackAndWhite", "splitToning", "liftGammaGain",
};

const Names EffectsOfImportedLooks = {
    "exposure",    "whiteBalance", "contrast",      "toneRegions",     "vibrance",  "saturation",
    "colourMixer", "primaries",    "colourGrading", "parametricCurve", "greyMixer",
};

/// A random value, up to half of the way from the default to either end.
double ChooseValue(const EffectParameter& parameter, std::mt19937& random)
{
    const double part = std::uniform_real_distribution<double>(-0.5, 0.5)(random);
    return parameter.defaultValue + part * (part < 0 ? parameter.defaultValue - parameter.minimum
                                                     : parameter.maximum - parameter.defaultValue);
}

Zorvik::Quindle::EffectPtr MakeRandomCurve(std::mt19937& random)
{
    const auto effect = MakeEffect("toneCurve", {});
    for (const char* const name : {"", "red", "green", "blue"}) {
        const std::string prefix = name;
        const std::string x = prefix.empty() ? "x" : prefix + "X";
        const std::string y = prefix.empty() ? "y" : prefix + "Y";
        const int points = int(random() % 9);
        effect->SetParameter(prefix.empty() ? "points" : prefix + "Points", points);
        for (int i = 0; i < points; ++i) {
            effect->SetParameter(x + std::to_string(i), 12.0 * i + double(random() % 10));
            effect->SetParameter(y + std::to_string(i), 12.0 * i + double(random() % 13));
        }
    }
    return effect;
}

EffectList MakeRandomChain(const Names& names, std::mt19937& random)
{
    EffectList chain;
    const std::size_t count = 1 + random() % 5;
    for (std::size_t i = 0; i < count; ++i) {
        const std::string effectID = names[random() % names.size()];
        chain.push_back(effectID == "toneCurve" ? MakeRandomCurve(random)
                                                : MakeEffect(effectID, {}));
        if (effectID == "toneCurve")
            continue;
        for (const EffectParameter& parameter : EffectRegistry::Find(effectID)->parameters)
            chain.back()->SetParameter(parameter.name, ChooseValue(parameter, random));
    }
    return chain;
}

std::string GetNames(const EffectList& chain)
{
    std::string names;
    for (const auto& effect : chain)
        names += effect->GetEffectID() + " ";
    return names;
}

void ExpectChainsOf(const Names& names)
{
    std::mt19937 random(20240531);
    double worst = 0, worstMean = 0;
    std::set<std::string> used;
    for (int round = 0; round < 100; ++round) {
        const EffectList chain = MakeRandomChain(names, random);
        for (const auto& effect : chain)
            used.insert(effect->GetEffectID());
        const Image source = MakeRandomPicture(97, 31, Image::Depth::Bits8, unsigned(round));

        const RenderError error = MeasureError(
            source, Renderer().Render(source, MakeSettings(chain)), MakeReference(chain, 97, 31));

        EXPECT_LE(error.largest, 1.0) << "round " << round << ": " << GetNames(chain);
        EXPECT_LE(error.mean, error.roundedMean + 0.01) << round << ": " << GetNames(chain);
        worst = std::max(worst, error.largest);
        worstMean = std::max(worstMean, error.mean - error.roundedMean);
    }
    EXPECT_EQ(used.size(), names.size());
    testing::Test::RecordProperty("largest", std::to_string(worst));
    testing::Test::RecordProperty("meanBeyondRounding", std::to_string(worstMean));
}

TEST(EffectChains, stayWithinAStepOfTheFormulas)
{
    ExpectChainsOf(ColourEffects);
}

TEST(EffectChains, ofImportedLooksStayWithinAStepOfTheFormulas)
{
    ExpectChainsOf(EffectsOfImportedLooks);
}

/// Values near the ends of the range of every parameter, of which some stay at their defaults.
EffectList MakeExtremeChain(const Names& names, std::mt19937& random)
{
    EffectList chain;
    for (const char* const name : names) {
        chain.push_back(MakeEffect(name, {}));
        for (const EffectParameter& parameter : EffectRegistry::Find(name)->parameters) {
            const double part = std::uniform_real_distribution<double>(0, 0.1)(random);
            const double width = parameter.maximum - parameter.minimum;
            if (const auto choice = random() % 4; choice > 0)
                chain.back()->SetParameter(parameter.name, choice == 1
                                                               ? parameter.minimum + part * width
                                                               : parameter.maximum - part * width);
        }
    }
    return chain;
}

/// How far apart the two pictures are, in steps.
unsigned GetLargestDifference(const Image& first, const Image& second)
{
    unsigned largest = 0;
    for (int y = 0; y < first.GetHeight(); ++y)
        for (int x = 0; x < first.GetWidth(); ++x)
            for (int c = 0; c < 3; ++c) {
                const unsigned one = GetChannel(first, x, y, c);
                const unsigned other = GetChannel(second, x, y, c);
                largest = std::max(largest, std::max(one, other) - std::min(one, other));
            }
    return largest;
}

void ExpectSameOnAllInstructionSets(const EffectList& chain, const Image& source)
{
    RenderOptions options;
    options.isa = Isa::Baseline;
    const Image expected = Renderer().Render(source, MakeSettings(chain), options);
    for (const Isa isa : GetSupportedIsas()) {
        options.isa = isa;
        const Image drawn = Renderer().Render(source, MakeSettings(chain), options);
        EXPECT_LE(GetLargestDifference(drawn, expected), 1u) << GetIsaName(isa);
    }
}

TEST(EffectChains, ofExtremeValuesAreAlmostTheSameOnAllInstructionSets)
{
    std::mt19937 random(14);
    for (const Names& names :
         {Names{"exposure", "vibrance", "liftGammaGain", "toneRegions", "liftGammaGain"},
          Names{"exposure", "vibrance", "liftGammaGain", "liftGammaGain"}})
        for (int round = 0; round < 400; ++round) {
            SCOPED_TRACE(testing::Message() << names.size() << " effects, round " << round);
            const EffectList chain = MakeExtremeChain(names, random);
            ExpectSameOnAllInstructionSets(
                chain, MakeRandomPicture(48, 16, Image::Depth::Bits8, unsigned(round)));
        }
}

// Values that grow from effect to effect must stay numbers: from infinity less infinity nothing
// comes back. Pure colours of any size stay those colours.
TEST(EffectChains, ofManyPowersKeepPureColours)
{
    const auto makeEffect = [](double power) {
        return MakeEffect("liftGammaGain", {{"slopeRed", 10},
                                            {"slopeGreen", 10},
                                            {"slopeBlue", 10},
                                            {"powerRed", power},
                                            {"powerGreen", power},
                                            {"powerBlue", power},
                                            {"saturation", 10}});
    };
    const EffectList chain = {makeEffect(10), makeEffect(10), makeEffect(1),
                              makeEffect(1),  makeEffect(1),  makeEffect(1)};
    for (const auto depth : {Image::Depth::Bits8, Image::Depth::Bits16}) {
        // Pixels 2 to 4 are red, green and blue.
        const Image source = MakeRandomPicture(48, 1, depth, 1);
        const Image drawn = Renderer().Render(source, MakeSettings(chain));
        for (int x = 2; x < 5; ++x)
            for (int c = 0; c < 3; ++c)
                EXPECT_EQ(GetChannel(drawn, x, 0, c), GetChannel(source, x, 0, c))
                    << "pixel " << x << ", channel " << c;
    }
}

} // namespace
} // namespace LumetraHost
