// SPDX-License-Identifier: GPL-2.0-or-later
#include "BenchmarkEffects.h"

#include "common/Effects.h"
#include "engine/effects/EffectKinds.h"
#include "engine/effects/lut3d/Lut3dSettings.h"
#include "engine/run/Renderer.h"

#include <cmath>
#include <stdexcept>
#include <utility>

namespace LumetraBench {
namespace {

using namespace LumetraHost;
using Zorvik::Quindle::EffectList;
using Zorvik::Quindle::EffectPtr;

/// A cube of 33 points that changes every colour a little: channels run into each other.
EffectPtr MakeCube()
{
    auto cube = LookUpTable::MakeIdentity(LookUpTable::Kind::Cube, 33, {0, 0, 0}, {1, 1, 1});
    for (std::size_t i = 0; i < cube.values.size(); i += LookUpTable::Stride) {
        const float red = cube.values[i];
        cube.values[i] = 0.9f * std::pow(red, 0.9f) + 0.1f * cube.values[i + 1];
        cube.values[i + 2] = 0.95f * cube.values[i + 2] + 0.05f * red;
    }
    return Lut3dSettings::Create(nullptr, &cube);
}

std::vector<EffectPtr> MakeEffects()
{
    const EffectList chain = MakeFiveColourEffects();
    std::vector<EffectPtr> effects(chain.begin(), chain.end());
    effects.insert(
        effects.end(),
        {MakeEffect("toneRegions", {{"shadows", 30}}),
         MakeEffect("toneCurve", {{"points", 3}, {"x1", 50}, {"y1", 60}, {"x2", 100}, {"y2", 100}}),
         MakeEffect("parametricCurve", {{"darks", -20}, {"lights", 20}}),
         MakeEffect("vibrance", {{"amount", 20}}),
         MakeEffect("colourMixer", {{"blueHue", 20}, {"orangeSaturation", 30}}),
         MakeEffect("channelMixer", {{"rr", 0.9}, {"rg", 0.1}}),
         MakeEffect("primaries", {{"redHue", 15}, {"shadowTint", 10}}),
         MakeEffect("blackAndWhite", {{"amount", 100}}),
         MakeEffect("greyMixer", {{"amount", 100}, {"blue", -40}}),
         MakeEffect("splitToning", {{"shadowHue", 220}, {"shadowSaturation", 30}}),
         MakeEffect("colourGrading",
                    {{"shadowHue", 220}, {"shadowSaturation", 30}, {"midtoneLuminance", 10}}),
         MakeEffect("vignette", {{"amount", -1}}), MakeEffect("grain", {{"amount", 25}}),
         MakeEffect("dehaze", {{"amount", 40}}), MakeEffect("gaussianBlur", {{"radius", 0.05}}),
         MakeEffect("sharpen", {{"amount", 80}}), MakeEffect("texture", {{"amount", 40}}),
         MakeEffect("clarity", {{"amount", 40}}), MakeCube()});
    return effects;
}

std::vector<BenchmarkEffects> MakeBenchmarkEffects()
{
    RegisterEffects();
    std::vector<BenchmarkEffects> made = {{Chain, MakeFiveColourEffects()}};
    for (const EffectPtr& effect : MakeEffects())
        made.push_back({effect->GetEffectID(), {effect}});
    return made;
}

Image RenderRow(Image row, const EffectList& effects)
{
    return Renderer().Render(row, effects, 1);
}

} // namespace

const std::vector<BenchmarkEffects>& GetBenchmarkEffects()
{
    static const std::vector<BenchmarkEffects> effects = MakeBenchmarkEffects();
    return effects;
}

const EffectList& FindEffects(const std::string& name)
{
    for (const BenchmarkEffects& effects : GetBenchmarkEffects())
        if (effects.name == name)
            return effects.effects;
    throw std::invalid_argument("expected the name of measured effects, found " + name);
}

const Zorvik::Quindle::IEffectSettings& FindEffect(const std::string& id)
{
    return **FindEffects(id).begin();
}

std::vector<std::uint8_t> MakeTable8(const EffectList& effects)
{
    Image row = Image::Allocate(256, 1, Image::Depth::Bits8);
    for (int i = 0; i < Image::Channels * 256; ++i)
        row.Row(0)[i] = static_cast<std::uint8_t>(i / Image::Channels);
    const Image drawn = RenderRow(row, effects);
    return {drawn.Row(0), drawn.Row(0) + Image::Channels * 256};
}

std::vector<std::uint16_t> MakeTable16(const EffectList& effects)
{
    Image row = Image::Allocate(65536, 1, Image::Depth::Bits16);
    for (int i = 0; i < Image::Channels * 65536; ++i)
        row.Row16(0)[i] = static_cast<std::uint16_t>(i / Image::Channels);
    const Image drawn = RenderRow(row, effects);
    return {drawn.Row16(0), drawn.Row16(0) + Image::Channels * 65536};
}

} // namespace LumetraBench
