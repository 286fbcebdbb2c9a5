// SPDX-License-Identifier: GPL-2.0-or-later
#include "TickPictures.h"

#include "engine/EffectKinds.h"

#include "Zorvik/Quindle/EffectSettingsImpl.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace LumetraBench {
namespace {

using LumetraHost::Image;
using Zorvik::Quindle::EffectPtr;
using Parameters = std::vector<std::pair<std::string, double>>;

std::uint8_t MakeByte(double value)
{
    return static_cast<std::uint8_t>(std::clamp(value, 0.0, 255.0));
}

EffectPtr MakeEffect(const char* id, const Parameters& parameters)
{
    const EffectPtr effect = Zorvik::Quindle::EffectSettingsImpl::Create(id);
    for (const auto& [name, value] : parameters)
        effect->SetParameter(name, value);
    return effect;
}

} // namespace

Image MakePhoto(int width, int height)
{
    Image photo = Image::AllocateUninitialised(width, height, Image::Depth::Bits8);
    std::mt19937 random(1);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const double u = double(x) / width;
            const double v = double(y) / height;
            const double grain = double(random() % 17) - 8;
            std::uint8_t* const pixel = photo.Row(y) + Image::Channels * x;
            pixel[0] = MakeByte(250 * u * (1 - 0.5 * v) + grain);
            pixel[1] = MakeByte(120 + 110 * std::sin(6 * u + 3 * v) + grain);
            pixel[2] = MakeByte(230 * v * (1 - 0.6 * u) + 10 + grain);
            pixel[3] = 255;
        }
    return photo;
}

Zorvik::Quindle::EffectList GradingChain::MakeEffects() const
{
    LumetraHost::RegisterEffects();
    Parameters cdl;
    const char* const names[] = {"Red", "Green", "Blue"};
    for (int i = 0; i < 3; ++i) {
        cdl.emplace_back(std::string("slope") + names[i], slope[i]);
        cdl.emplace_back(std::string("offset") + names[i], offset[i]);
        cdl.emplace_back(std::string("power") + names[i], power[i]);
    }
    return {MakeEffect("exposure", {{"stops", stops}}),
            MakeEffect("whiteBalance", {{"temperature", temperature}, {"tint", tint}}),
            MakeEffect("contrast", {{"amount", contrast}}),
            MakeEffect("saturation", {{"amount", saturation}}), MakeEffect("liftGammaGain", cdl)};
}

GradingChain GradingChain::GetWeaker(double strength) const
{
    GradingChain weaker = *this;
    weaker.stops *= strength;
    weaker.temperature = 6500 + strength * (temperature - 6500);
    weaker.tint *= strength;
    weaker.contrast *= strength;
    weaker.saturation *= strength;
    for (int i = 0; i < 3; ++i) {
        weaker.slope[i] = 1 + strength * (slope[i] - 1);
        weaker.offset[i] *= strength;
        weaker.power[i] = 1 + strength * (power[i] - 1);
    }
    return weaker;
}

double GetPsnr(const Image& first, const Image& second)
{
    double sum = 0;
    for (int y = 0; y < first.GetHeight(); ++y)
        for (int i = 0; i < Image::Channels * first.GetWidth(); ++i) {
            const double difference = i % 4 == 3 ? 0 : first.Row(y)[i] - second.Row(y)[i];
            sum += difference * difference;
        }
    if (sum == 0)
        return std::numeric_limits<double>::infinity();
    return 10 * std::log10(255.0 * 255 * 3 * first.GetWidth() * first.GetHeight() / sum);
}

} // namespace LumetraBench
