// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/colourmixer/ColourMixerEffect.h"

#include "engine/effects/MakeKind.h"
#include "engine/effects/colourmixer/ColourMixerKernel.h"
#include "engine/kernels/KernelSelection.h"
#include "engine/stages/KernelStage.h"

#include <algorithm>
#include <string>

namespace LumetraHost {
namespace {

using Zorvik::Quindle::EffectParameter;
using Zorvik::Quindle::IEffectSettings;
using Band = ColourMixerParameters::Band;
using Amounts = std::array<double, HueCircle::Hues>;

constexpr std::size_t Hues = HueCircle::Hues;

constexpr double TurnAtHundred = 0.5; // sectors of 60 degrees
constexpr double LightAtHundred = 0.6;

// The steepest slope of the step is 1.5, and hues keep a twentieth of their distance.
constexpr double MostApproach = 0.95 / 1.5;
// The corrections fall by a constant factor in each round, below what a float can tell.
constexpr int Rounds = 200;

/// Brings the shifts of neighbours that would pass each other together.
void KeepOrder(Amounts& turns)
{
    for (int round = 0; round < Rounds; ++round)
        for (std::size_t i = 0; i < Hues; ++i) {
            double& first = turns[i];
            double& second = turns[(i + 1) % Hues];
            const double width = double(HueCircle::Centres[i + 1]) - double(HueCircle::Centres[i]);
            const double excess = std::max(first - second - MostApproach * width, 0.0);
            first -= excess / 2;
            second += excess / 2;
        }
}

Amounts Collect(const ColourMixerParameters& parameters, double Band::*number, double scale)
{
    Amounts amounts{};
    std::transform(parameters.bands.begin(), parameters.bands.end(), amounts.begin(),
                   [=](const Band& band) { return scale * (band.*number) / 100; });
    return amounts;
}

StagePtr CreateStage(const ColourMixerParameters& parameters, const StageContext& context)
{
    Amounts turns = Collect(parameters, &Band::hue, TurnAtHundred);
    KeepOrder(turns);
    ColourMixerNumbers numbers;
    numbers.hue = MakeHueAmounts(turns);
    numbers.saturation = MakeHueAmounts(Collect(parameters, &Band::saturation, 1));
    numbers.luminance = MakeHueAmounts(Collect(parameters, &Band::luminance, LightAtHundred));
    return MakeKernelStage(SelectKernel<ColourMixerKernel>(context.isa), ColourSpace::Encoded,
                           ChannelWork::Mixed, numbers);
}

} // namespace

template <>
const std::vector<EffectParameter>& DescribeParameters<ColourMixerParameters>()
{
    static const auto parameters = [] {
        std::vector<EffectParameter> all;
        for (const std::string name : HueCircle::Names)
            for (const char* const number : {"Hue", "Saturation", "Luminance"})
                all.push_back({name + number, -100, 100, 0, "%"});
        return all;
    }();
    return parameters;
}

template <>
ColourMixerParameters ReadParameters<ColourMixerParameters>(const IEffectSettings& settings)
{
    const EffectParameter* next = DescribeParameters<ColourMixerParameters>().data();
    ColourMixerParameters result;
    for (Band& band : result.bands)
        for (double* const number : {&band.hue, &band.saturation, &band.luminance})
            *number = ReadNumber(settings, *next++);
    return result;
}

bool ColourMixerParameters::IsIdentity() const
{
    return std::all_of(bands.begin(), bands.end(), [](const Band& band) {
        return band.hue == 0 && band.saturation == 0 && band.luminance == 0;
    });
}

EffectKind MakeColourMixerKind()
{
    return MakeKind(QT_TRANSLATE_NOOP("Effects", "Colour mixer"), CreateStage);
}

} // namespace LumetraHost
