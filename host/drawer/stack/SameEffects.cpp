// SPDX-License-Identifier: GPL-2.0-or-later
#include "drawer/stack/SameEffects.h"

#include "engine/effects/EffectKinds.h"
#include "engine/effects/lut3d/Lut3dSettings.h"
#include "storage/JsonSerializer.h"
#include "storage/JsonWriter.h"

#include <algorithm>
#include <optional>

namespace LumetraHost {
namespace {

using Zorvik::Quindle::EffectParameter;
using Zorvik::Quindle::EffectPtr;
using Zorvik::Quindle::IEffectSettings;

std::optional<double> GetValue(const IEffectSettings& effect, const std::string& name)
{
    if (!effect.HasParameter(name))
        return std::nullopt;
    return effect.GetParameter(name);
}

std::string GetStoredForm(const IEffectSettings& effect)
{
    const auto object = std::make_shared<JsonObject>();
    effect.Serialize(JsonSerializer::Create(object, "effect"));
    return JsonWriter::Write(*object);
}

/// Compares the parts of the stored form that are no numbers. Tables are known by their content's
/// hash, so that they need not be written out, nor even read.
bool HaveSameContent(const IEffectSettings& first, const IEffectSettings& second)
{
    const auto* const a = dynamic_cast<const Lut3dSettings*>(&first);
    const auto* const b = dynamic_cast<const Lut3dSettings*>(&second);
    return a && b ? a->HasSameTables(*b) : GetStoredForm(first) == GetStoredForm(second);
}

} // namespace

bool AreSameEffects(const EffectPtr& first, const EffectPtr& second)
{
    if (first == second)
        return true;
    if (!first || !second || first->GetEffectID() != second->GetEffectID())
        return false;
    const EffectKind* const kind = EffectKinds::Find(first->GetEffectID());
    if (!kind)
        return true;
    const auto& parameters = kind->descriptor.parameters;
    const bool haveSameNumbers =
        std::all_of(parameters.begin(), parameters.end(), [&](const EffectParameter& parameter) {
            return GetValue(*first, parameter.name) == GetValue(*second, parameter.name);
        });
    return haveSameNumbers && (!kind->descriptor.create || HaveSameContent(*first, *second));
}

bool DrawTheSame(const Zorvik::Quindle::EffectsSettings& first,
                 const Zorvik::Quindle::EffectsSettings& second)
{
    return first.GetBlendAmount() == second.GetBlendAmount() &&
           std::equal(first.Effects().begin(), first.Effects().end(), second.Effects().begin(),
                      second.Effects().end(), AreSameEffects);
}

} // namespace LumetraHost
