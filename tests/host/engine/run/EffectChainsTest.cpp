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

} // namespace
} // namespace LumetraHost
