// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/engine/ReferenceEffects.h"

#include "host/engine/ReferenceFormulas.h"
#include "host/engine/ReferenceHueEffects.h"
#include "host/engine/TestPictures.h"

#include "engine/effects/whitebalance/WhiteBalanceEffect.h"
#include "image/Srgb.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <map>
#include <vector>

namespace LumetraHost {
namespace {

using Zorvik::Quindle::EffectList;
using Zorvik::Quindle::EffectPtr;
using Zorvik::Quindle::IEffectSettings;

Colour MixWithLuma(const Colour& c, double s)
{
    const double luma = Luma(c);
    return Map(c, [=](double v) { return luma + s * (v - luma); });
}

ReferenceFormula Exposure(const IEffectSettings& effect, int, int)
{
    const double factor = std::exp2(effect.GetParameter("stops"));
    return [=](const Colour& c, int, int) { return Map(c, [=](double v) { return v * factor; }); };
}

ReferenceFormula WhiteBalance(const IEffectSettings& effect, int, int)
{
    const auto matrix = ReadParameters<WhiteBalanceParameters>(effect).GetMatrix();
    return [=](const Colour& c, int, int) { return matrix.Transform(c); };
}

ReferenceFormula Contrast(const IEffectSettings& effect, int, int)
{
    const double exponent = std::exp2(effect.GetParameter("amount") / 100);
    return [=](const Colour& c, int, int) {
        return Map(c, [=](double v) {
            return std::copysign(0.18 * std::pow(std::abs(v) / 0.18, exponent), v);
        });
    };
}

ReferenceFormula Saturation(const IEffectSettings& effect, int, int)
{
    const double amount = effect.GetParameter("amount");
    return OnEncoded([=](const Colour& c, int, int) { return MixWithLuma(c, 1 + amount / 100); });
}

ReferenceFormula Vibrance(const IEffectSettings& effect, int, int)
{
    const double amount = effect.GetParameter("amount");
    return [=](const Colour& c, int, int) {
        const auto [least, most] = std::minmax({c[0], c[1], c[2]});
        const double s = most > 0 ? std::min((most - least) / most, 1.0) : 0;
        return MixWithLuma(c, 1 + amount / 100 * (1 - s));
    };
}

ReferenceFormula ChannelMixer(const IEffectSettings& effect, int, int)
{
    const auto row = [&effect](const std::string& to) -> Colour {
        return {effect.GetParameter(to + "r"), effect.GetParameter(to + "g"),
                effect.GetParameter(to + "b")};
    };
    const auto dot = [](const Colour& a, const Colour& b) {
        return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
    };
    return [=, r = row("r"), g = row("g"), b = row("b")](const Colour& c, int, int) -> Colour {
        return {dot(r, c), dot(g, c), dot(b, c)};
    };
}

ReferenceFormula BlackAndWhite(const IEffectSettings& effect, int, int)
{
    const double part = effect.GetParameter("amount") / 100;
    const Colour weights = {effect.GetParameter("red"), effect.GetParameter("green"),
                            effect.GetParameter("blue")};
    return [=](const Colour& c, int, int) {
        const double grey = weights[0] * c[0] + weights[1] * c[1] + weights[2] * c[2];
        return Map(c, [=](double v) { return (1 - part) * v + part * grey; });
    };
}

ReferenceFormula ToneRegions(const IEffectSettings& effect, int, int)
{
    const std::vector<double> x = {-8, -5, std::log2(0.18), -1, 0};
    std::vector<double> y = {x[0] + effect.GetParameter("blacks") / 50,
                             x[1] + effect.GetParameter("shadows") * 0.015,
                             x[2] + effect.GetParameter("midtones") / 100,
                             x[3] + effect.GetParameter("highlights") * 0.0075,
                             x[4] + effect.GetParameter("whites") * 0.0075};
    y[3] = std::max(y[3], y[2] + (x[3] - x[2]) / 20);
    y[4] = std::max(y[4], y[3] + (x[4] - x[3]) / 20);
    y[1] = std::min(y[1], y[2] - (x[2] - x[1]) / 20);
    y[0] = std::min(y[0], y[1] - (x[1] - x[0]) / 20);
    const HermiteCurve curve(x, y, 1);
    return [=](const Colour& c, int, int) {
        const double luma = Luma(c);
        const double s = luma > 0 ? std::clamp(std::log2(luma), -8.0, 0.0) : -8.0;
        const double gain = curve.Evaluate(s) - s;
        return Map(c, [=](double v) { return v * std::exp2(gain); });
    };
}

std::function<double(double)> ReadCurve(const IEffectSettings& effect, const std::string& points,
                                        const std::string& x, const std::string& y)
{
    std::map<double, double> sorted;
    for (int i = 0; i < std::lround(effect.GetParameter(points)); ++i)
        sorted[effect.GetParameter(x + std::to_string(i)) / 100] =
            effect.GetParameter(y + std::to_string(i)) / 100;
    if (sorted.size() < 2)
        return [](double v) { return v; };
    std::vector<double> xs, ys;
    for (const auto& [px, py] : sorted) {
        xs.push_back(px);
        ys.push_back(py);
    }
    const HermiteCurve curve(xs, ys, std::nan(""));
    return [=](double v) { return curve.Extend(v); };
}

ReferenceFormula ToneCurve(const IEffectSettings& effect, int, int)
{
    const auto master = ReadCurve(effect, "points", "x", "y");
    const auto red = ReadCurve(effect, "redPoints", "redX", "redY");
    const auto green = ReadCurve(effect, "greenPoints", "greenX", "greenY");
    const auto blue = ReadCurve(effect, "bluePoints", "blueX", "blueY");
    return OnEncoded([=](const Colour& c, int, int) -> Colour {
        return {red(master(c[0])), green(master(c[1])), blue(master(c[2]))};
    });
}

ReferenceFormula ParametricCurve(const IEffectSettings& effect, int, int)
{
    const double middle = effect.GetParameter("midtoneSplit");
    const double splits[] = {0, std::min(effect.GetParameter("shadowSplit"), middle - 5), middle,
                             std::max(effect.GetParameter("highlightSplit"), middle + 5), 100};
    std::vector<double> x = {0};
    for (std::size_t i = 0; i < 4; ++i)
        x.push_back((splits[i] + splits[i + 1]) / 200);
    x.push_back(1);
    std::vector<double> y = x;
    std::size_t i = 0;
    for (const char* const region : {"shadows", "darks", "lights", "highlights"}) {
        const double amount = effect.GetParameter(region) / 100;
        ++i;
        y[i] += 0.45 * amount * (amount > 0 ? x[i + 1] - x[i] : x[i] - x[i - 1]);
    }
    const HermiteCurve curve(x, y, std::nan(""));
    return OnEncoded([=](const Colour& c, int, int) {
        return Map(c, [=](double v) { return curve.Extend(v); });
    });
}

ReferenceFormula SplitToning(const IEffectSettings& effect, int, int)
{
    const Colour shadow =
        Tint(effect.GetParameter("shadowHue"), effect.GetParameter("shadowSaturation"));
    const Colour highlight =
        Tint(effect.GetParameter("highlightHue"), effect.GetParameter("highlightSaturation"));
    const double pivot = 0.5 - 0.4 * effect.GetParameter("balance") / 100;
    return OnEncoded([=](const Colour& c, int, int) {
        const double luma = std::clamp(Luma(c), 0.0, 1.0);
        const double w = SmoothStep(std::clamp(luma - pivot + 0.5, 0.0, 1.0));
        Colour result = c;
        for (std::size_t i = 0; i < 3; ++i)
            result[i] += 4 * luma * (1 - luma) * ((1 - w) * shadow[i] + w * highlight[i]);
        return result;
    });
}

ReferenceFormula LiftGammaGain(const IEffectSettings& effect, int, int)
{
    const auto read = [&effect](const std::string& name) -> Colour {
        return {effect.GetParameter(name + "Red"), effect.GetParameter(name + "Green"),
                effect.GetParameter(name + "Blue")};
    };
    const Colour slope = read("slope"), offset = read("offset"), power = read("power");
    const double saturation = effect.GetParameter("saturation");
    const bool clamps = effect.GetParameter("clamp") >= 0.5;
    return OnEncoded([=](const Colour& c, int, int) {
        Colour result{};
        for (std::size_t i = 0; i < 3; ++i) {
            const double v = c[i] * slope[i] + offset[i];
            if (clamps)
                result[i] = std::pow(std::clamp(v, 0.0, 1.0), power[i]);
            else
                result[i] = v < 0 ? v : std::pow(v, power[i]);
        }
        result = MixWithLuma(result, saturation);
        return clamps ? Map(result, [](double v) { return std::clamp(v, 0.0, 1.0); }) : result;
    });
}

ReferenceFormula Vignette(const IEffectSettings& effect, int width, int height)
{
    const double amount = effect.GetParameter("amount");
    const double begin = effect.GetParameter("size") / 100;
    const double end = begin + effect.GetParameter("feather") / 100 * (1 - begin);
    const double round = effect.GetParameter("roundness") / 100;
    const double radius = std::sqrt(width / 2.0 * height / 2.0);
    const double a = width / 2.0 * (1 - round) + radius * round;
    const double b = height / 2.0 * (1 - round) + radius * round;
    const double corner = std::hypot(width / 2.0 / a, height / 2.0 / b);
    return [=](const Colour& c, int x, int y) {
        const double distance =
            std::hypot((x + 0.5 - width / 2.0) / a, (y + 0.5 - height / 2.0) / b) / corner;
        const double t = std::clamp((distance - begin) / (end - begin), 0.0, 1.0);
        const double factor = 1 + (std::exp2(amount) - 1) * SmoothStep(t);
        return Map(c, [=](double v) { return v * factor; });
    };
}

double LatticeValue(std::uint32_t u, std::uint32_t v, std::uint32_t key)
{
    std::uint32_t h = u * 0x9E3779B1u + v * 0x85EBCA77u + key * 0xC2B2AE3Du;
    h = (h ^ h >> 16) * 0x7feb352du;
    h = (h ^ h >> 15) * 0x846ca68bu;
    h ^= h >> 16;
    return static_cast<std::int32_t>(h) / 2147483648.0;
}

double LatticeNoise(double u, double v, std::uint32_t key)
{
    const auto cellU = static_cast<std::uint32_t>(u), cellV = static_cast<std::uint32_t>(v);
    const double s = SmoothStep(u - cellU), t = SmoothStep(v - cellV);
    return (1 - s) * (1 - t) * LatticeValue(cellU, cellV, key) +
           s * (1 - t) * LatticeValue(cellU + 1, cellV, key) +
           (1 - s) * t * LatticeValue(cellU, cellV + 1, key) +
           s * t * LatticeValue(cellU + 1, cellV + 1, key);
}

ReferenceFormula Grain(const IEffectSettings& effect, int width, int height)
{
    const double amount = effect.GetParameter("amount");
    const double fine = effect.GetParameter("roughness") / 100;
    const double cell = effect.GetParameter("size") / 1000 * std::hypot(width, height);
    const auto seed = static_cast<std::uint32_t>(std::lround(effect.GetParameter("seed")));
    const double deviation = std::hypot(1 - fine, fine) * 26 / 35 / std::sqrt(3.0);
    const auto layer = [](double x, double y, double size, double sine, double cosine,
                          std::uint32_t key) {
        return std::min(1.0, size) * LatticeNoise(65536 + (x * cosine + y * sine) / size,
                                                  65536 + (y * cosine - x * sine) / size, key);
    };
    return OnEncoded([=](const Colour& c, int x, int y) {
        const double luma = std::clamp(Luma(c), 0.0, 1.0);
        const double n =
            ((1 - fine) * layer(x + 0.5, y + 0.5, cell, 3.0 / 5, 4.0 / 5, seed) +
             fine * layer(x + 0.5, y + 0.5, cell / 2, 5.0 / 13, 12.0 / 13, seed + 65536)) /
            deviation;
        const double grain = amount / 1000 * 2 * std::sqrt(luma * (1 - luma)) * n;
        return Map(c, [=](double v) { return v + grain; });
    });
}

} // namespace

ReferenceFormula MakeReference(const IEffectSettings& effect, int width, int height)
{
    static const std::map<std::string,
                          std::function<ReferenceFormula(const IEffectSettings&, int, int)>>
        references = {{"exposure", Exposure},
                      {"whiteBalance", WhiteBalance},
                      {"contrast", Contrast},
                      {"toneRegions", ToneRegions},
                      {"toneCurve", ToneCurve},
                      {"saturation", Saturation},
                      {"vibrance", Vibrance},
                      {"colourMixer", ColourMixer},
                      {"channelMixer", ChannelMixer},
                      {"primaries", Primaries},
                      {"parametricCurve", ParametricCurve},
                      {"greyMixer", GreyMixer},
                      {"colourGrading", ColourGrading},
                      {"blackAndWhite", BlackAndWhite},
                      {"splitToning", SplitToning},
                      {"liftGammaGain", LiftGammaGain},
                      {"vignette", Vignette},
                      {"grain", Grain}};
    return references.at(effect.GetEffectID())(effect, width, height);
}

ReferenceFormula MakeReference(const EffectList& effects, int width, int height)
{
    std::vector<ReferenceFormula> formulas;
    for (const EffectPtr& effect : effects)
        formulas.push_back(MakeReference(*effect, width, height));
    return [formulas](Colour c, int x, int y) {
        for (const ReferenceFormula& formula : formulas)
            c = formula(c, x, y);
        return c;
    };
}

void ExpectReference(const EffectPtr& effect)
{
    ExpectFormula(MakeSettings({effect}), MakeReference(*effect, ReferenceWidth, ReferenceHeight));
}

} // namespace LumetraHost
