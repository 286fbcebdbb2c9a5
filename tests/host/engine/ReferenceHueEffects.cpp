// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/engine/ReferenceHueEffects.h"

#include "host/engine/HueChart.h"
#include "host/engine/ReferenceFormulas.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <vector>

namespace LumetraHost {
namespace {

using Zorvik::Quindle::IEffectSettings;
using Amounts = std::vector<double>;

/// The degrees from one hue to the next one.
double GetWidth(std::size_t i)
{
    const auto& hues = GetNamedHues();
    return i + 1 < hues.size() ? hues[i + 1].degrees - hues[i].degrees : 360 - hues[i].degrees;
}

Amounts ReadAmounts(const IEffectSettings& effect, const std::string& number)
{
    Amounts amounts;
    for (const NamedHue& hue : GetNamedHues())
        amounts.push_back(effect.GetParameter(hue.name + number) / 100);
    return amounts;
}

/// The sum over all hues of weight and amount.
double Weigh(const Amounts& amounts, double degrees)
{
    double sum = 0;
    for (std::size_t i = 0; i < amounts.size(); ++i) {
        const double t = (degrees - GetNamedHues()[i].degrees) / GetWidth(i);
        const double next = t >= 0 && t < 1 ? SmoothStep(t) : 0;
        const double own = t >= 0 && t < 1 ? 1 - next : 0;
        sum += own * amounts[i] + next * amounts[(i + 1) % amounts.size()];
    }
    return sum;
}

/// Degrees, brought together until the hues keep a twentieth of their distance.
Amounts GetTurns(const IEffectSettings& effect)
{
    Amounts turns = ReadAmounts(effect, "Hue");
    for (double& turn : turns)
        turn *= 30;
    double worst = 1;
    while (worst > 1e-9) {
        worst = 0;
        for (std::size_t i = 0; i < turns.size(); ++i) {
            double& next = turns[(i + 1) % turns.size()];
            const double excess = turns[i] - next - 0.95 * GetWidth(i) / 1.5;
            worst = std::max(worst, excess);
            turns[i] -= std::max(excess, 0.0) / 2;
            next += std::max(excess, 0.0) / 2;
        }
    }
    return turns;
}

double GetSaturation(const Colour& c)
{
    const double size = std::max({std::abs(c[0]), std::abs(c[1]), std::abs(c[2])});
    return std::min(MeasureChroma(c) / (0.1 + size), 1.0);
}

double GetLight(double amount, double saturation)
{
    return std::exp2(amount * SmoothStep(std::min(2 * saturation, 1.0)));
}

} // namespace

ReferenceFormula ColourMixer(const IEffectSettings& effect, int, int)
{
    const Amounts turns = GetTurns(effect);
    const Amounts saturations = ReadAmounts(effect, "Saturation");
    const Amounts luminances = ReadAmounts(effect, "Luminance");
    return OnEncoded([=](const Colour& c, int, int) {
        const double chroma = MeasureChroma(c);
        if (chroma == 0)
            return c;
        const double hue = MeasureHue(c), saturation = GetSaturation(c);
        const double amount = Weigh(saturations, hue);
        const double newChroma = chroma * (1 + amount * (amount < 0 ? 1 : 1 - saturation));
        const double newHue = hue + Weigh(turns, hue);
        const Colour pure = Pure(newHue - 360 * std::floor(newHue / 360));
        const double light = GetLight(0.6 * Weigh(luminances, hue), saturation);
        return Map(pure,
                   [&](double v) { return light * (Luma(c) + newChroma * (v - Luma(pure))); });
    });
}

ReferenceFormula GreyMixer(const IEffectSettings& effect, int, int)
{
    const double part = effect.GetParameter("amount") / 100;
    const Amounts amounts = ReadAmounts(effect, "");
    return OnEncoded([=](const Colour& c, int, int) {
        const double chroma = MeasureChroma(c);
        const double amount = chroma == 0 ? 0 : 0.75 * Weigh(amounts, MeasureHue(c));
        const double grey = Luma(c) * GetLight(amount, GetSaturation(c));
        return Map(c, [=](double v) { return (1 - part) * v + part * grey; });
    });
}

ReferenceFormula Primaries(const IEffectSettings& effect, int, int)
{
    const std::string names[] = {"red", "green", "blue"};
    Colour primaries[] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
    std::array<Colour, 3> changes{};
    for (std::size_t i = 0; i < 3; ++i) {
        const double hue = 120.0 * double(i) + 0.45 * effect.GetParameter(names[i] + "Hue");
        const double chroma = 1 + effect.GetParameter(names[i] + "Saturation") / 100;
        const Colour pure = Pure(hue < 0 ? hue + 360 : hue);
        for (std::size_t c = 0; c < 3; ++c)
            changes[i][c] = Luma(primaries[i]) + chroma * (pure[c] - Luma(pure)) - primaries[i][c];
    }
    const double tint = effect.GetParameter("shadowTint");
    return OnEncoded([=](const Colour& c, int, int) {
        const double mean = (c[0] + c[1] + c[2]) / 3;
        const double luma = std::clamp(Luma(c), 0.0, 1.0);
        const double shadow = 4 * luma * (1 - luma) * std::pow(1 - SmoothStep(luma), 2);
        Colour result = c;
        for (std::size_t k = 0; k < 3; ++k) {
            for (std::size_t i = 0; i < 3; ++i)
                result[k] += changes[i][k] * (c[i] - mean);
            result[k] += tint / 500 * shadow * ((k == 1 ? 0.0 : 1.0) - Luma({1, 0, 1}));
        }
        return result;
    });
}

namespace {

/// Steps from 0 to 1 over `width` around `centre`.
double StepAround(double value, double centre, double width)
{
    return SmoothStep(std::clamp((value - centre) / width + 0.5, 0.0, 1.0));
}

Colour ReadTint(const IEffectSettings& effect, const std::string& range)
{
    return Tint(effect.GetParameter(range + "Hue"), effect.GetParameter(range + "Saturation"));
}

HermiteCurve MakeGradingCurve(const IEffectSettings& effect, double p)
{
    const double all = effect.GetParameter("globalLuminance") / 500;
    const double dark = all + effect.GetParameter("shadowLuminance") / 500;
    const double middle = all + effect.GetParameter("midtoneLuminance") / 500;
    const double light = all + effect.GetParameter("highlightLuminance") / 500;
    return {
        {0, p / 2, p, 0.5 + p / 2, 1},
        {0, p / 2 + dark * p, p + middle * std::min(p, 1 - p), 0.5 + p / 2 + light * (1 - p), 1},
        std::nan("")};
}

} // namespace

ReferenceFormula ColourGrading(const IEffectSettings& effect, int, int)
{
    const double p = 0.5 - 0.004 * effect.GetParameter("balance");
    const double b = 0.2 + 0.008 * effect.GetParameter("blending");
    const HermiteCurve curve = MakeGradingCurve(effect, p);
    const Colour shadow = ReadTint(effect, "shadow"), midtone = ReadTint(effect, "midtone");
    const Colour highlight = ReadTint(effect, "highlight"), global = ReadTint(effect, "global");
    return OnEncoded([=](const Colour& c, int, int) {
        const double luma = std::clamp(Luma(c), 0.0, 1.0);
        const double place = std::max(luma, 1.0 / 4096);
        const double dark = 1 - StepAround(luma, p / 2, b * p);
        const double light = StepAround(luma, 0.5 + p / 2, b * (1 - p));
        Colour result = c;
        for (std::size_t i = 0; i < 3; ++i)
            result[i] = c[i] * curve.Evaluate(place) / place +
                        4 * luma * (1 - luma) *
                            (dark * shadow[i] + light * highlight[i] +
                             (1 - dark - light) * midtone[i] + global[i]);
        return result;
    });
}

} // namespace LumetraHost
