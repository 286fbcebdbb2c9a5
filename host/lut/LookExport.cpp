// SPDX-License-Identifier: GPL-2.0-or-later
#include "lut/LookExport.h"

#include "engine/effects/EffectKinds.h"
#include "engine/run/Blend.h"
#include "engine/run/RenderPlan.h"
#include "engine/run/Renderer.h"

#include "Zorvik/Proc/SettingsEffectEmpty.h"
#include "storage/FailWith.h"

#include <algorithm>
#include <cmath>
#include <functional>

namespace LumetraHost {
namespace {

using Zorvik::Quindle::EffectPtr;
using Zorvik::Quindle::EffectsSettings;

bool Fits(const EffectPtr& effect)
{
    if (!effect || effect->GetEffectID() == Zorvik::Proc::SettingsEffectEmpty::EFFECT_ID)
        return true;
    const EffectKind* const kind = EffectKinds::Find(effect->GetEffectID());
    if (!kind)
        return false;
    if (kind->reach == EffectReach::ColourOnly)
        return true;
    const StageContext context{Isa::Baseline, PictureArea::Whole(1024, 1024)};
    return kind->reach == EffectReach::Spatial ? !kind->createPass(*effect, context)
                                               : !kind->createStage(*effect, context);
}

std::string Quote(const std::vector<std::string>& names)
{
    std::string text;
    for (const std::string& name : names)
        text += (text.empty() ? "\"" : ", \"") + name + "\"";
    return text;
}

/// One pixel for each entry of the table.
Image MakePicture(const LookUpTable& table)
{
    const int width = table.size * table.size;
    Image picture = Image::Allocate(width, table.size, Image::Depth::Bits16);
    const float* value = table.values.data();
    for (int y = 0; y < table.size; ++y) {
        std::uint16_t* const row = picture.Row16(y);
        for (int x = 0; x < width; ++x, value += LookUpTable::Stride) {
            for (int c = 0; c < 3; ++c)
                row[4 * x + c] = static_cast<std::uint16_t>(std::lround(value[c] * 65535.0f));
            row[4 * x + 3] = 65535;
        }
    }
    return picture;
}

void ReadColours(const Image& picture, LookUpTable& table)
{
    float* value = table.values.data();
    for (int y = 0; y < picture.GetHeight(); ++y)
        for (int x = 0; x < picture.GetWidth(); ++x, value += LookUpTable::Stride)
            for (int c = 0; c < 3; ++c)
                value[c] = static_cast<float>(picture.Row16(y)[4 * x + c]) / 65535.0f;
}

} // namespace

std::vector<std::string> LookExport::FindUnfitEffects(const EffectsSettings& look)
{
    std::vector<std::string> names;
    for (const EffectPtr& effect : look.Effects()) {
        if (Fits(effect))
            continue;
        const std::string& name = effect->GetEffectID();
        if (std::find(names.begin(), names.end(), name) == names.end())
            names.push_back(name);
    }
    return names;
}

EffectsSettings LookExport::TakeColours(const EffectsSettings& look)
{
    EffectsSettings colours = look;
    auto& effects = colours.Effects();
    effects.erase(std::remove_if(effects.begin(), effects.end(), std::not_fn(Fits)), effects.end());
    return colours;
}

bool LookExport::ChangesNothing(const EffectsSettings& look)
{
    const StageContext context{Isa::Baseline, PictureArea::Whole(1024, 1024)};
    return ClampBlendAmount(look.GetBlendAmount()) == SourceOnly ||
           RenderPlan(look.Effects(), context).IsEmpty();
}

std::string LookExport::DescribeUnfit(const std::vector<std::string>& names)
{
    return "expected effects of colour alone, which fit into a table, found " + Quote(names);
}

LookUpTable LookExport::MakeTable(const EffectsSettings& look, int size)
{
    const auto unfit = FindUnfitEffects(look);
    if (!unfit.empty())
        FailWith(DescribeUnfit(unfit));
    if (size < SmallestSize || size > LargestSize)
        FailWith("expected a size from " + std::to_string(SmallestSize) + " to " +
                 std::to_string(LargestSize) + ", found " + std::to_string(size));
    auto table = LookUpTable::MakeIdentity(LookUpTable::Kind::Cube, size, {0, 0, 0}, {1, 1, 1});
    ReadColours(Renderer().Render(MakePicture(table), look), table);
    return table;
}

} // namespace LumetraHost
