// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/engine/TestPictures.h"

#include "engine/effects/EffectKinds.h"

#include "Zorvik/Quindle/EffectSettingsImpl.h"

#include <array>
#include <random>

namespace LumetraHost {
namespace {

using Zorvik::Quindle::EffectList;
using Zorvik::Quindle::EffectPtr;
using Zorvik::Quindle::EffectsSettings;

void SetChannel(Image& image, int x, int y, int channel, unsigned value)
{
    if (image.GetDepth() == Image::Depth::Bits16)
        image.Row16(y)[4 * x + channel] = static_cast<std::uint16_t>(value);
    else
        image.Row(y)[4 * x + channel] = static_cast<std::uint8_t>(value);
}

} // namespace

Image MakeRandomPicture(int width, int height, Image::Depth depth, unsigned seed)
{
    static const std::array<std::array<double, 4>, 6> first = {{{0, 0, 0, 1},
                                                                {1, 1, 1, 1},
                                                                {1, 0, 0, 1},
                                                                {0, 1, 0, 0.5},
                                                                {0, 0, 1, 0},
                                                                {0.46, 0.46, 0.46, 1}}};
    Image image = Image::Allocate(width, height, depth);
    const unsigned white = GetWhite(image);
    std::mt19937 random(seed);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            for (int channel = 0; channel < 4; ++channel) {
                const auto i = static_cast<std::size_t>(y * width + x);
                const auto c = static_cast<std::size_t>(channel);
                const unsigned value = random() % (white + 1);
                SetChannel(image, x, y, channel,
                           i < first.size() ? static_cast<unsigned>(first[i][c] * white) : value);
            }
    return image;
}

EffectPtr MakeEffect(const std::string& effectID,
                     std::initializer_list<std::pair<const char*, double>> parameters)
{
    RegisterEffects();
    const EffectPtr effect = Zorvik::Quindle::EffectSettingsImpl::Create(effectID);
    for (const auto& [name, value] : parameters)
        effect->SetParameter(name, value);
    return effect;
}

EffectsSettings MakeSettings(const EffectList& effects, int blendAmount)
{
    EffectsSettings settings(1);
    settings.Effects() = effects;
    settings.SetBlendAmount(blendAmount);
    return settings;
}

unsigned GetChannel(const Image& image, int x, int y, int channel)
{
    return image.GetDepth() == Image::Depth::Bits16 ? image.Row16(y)[4 * x + channel]
                                                    : image.Row(y)[4 * x + channel];
}

unsigned GetWhite(const Image& image)
{
    return image.GetDepth() == Image::Depth::Bits16 ? 65535 : 255;
}

void PrintTo(Image::Depth depth, std::ostream* stream)
{
    *stream << (depth == Image::Depth::Bits16 ? "16 bits" : "8 bits");
}

} // namespace LumetraHost
