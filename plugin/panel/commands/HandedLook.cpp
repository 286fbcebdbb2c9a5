// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/commands/HandedLook.h"

#include "catalogue/VisibleText.h"
#include "core/PresetControllerFactory.h"
#include "core/PresetMaker.h"
#include "core/PresetNames.h"

#include <algorithm>
#include <cmath>

namespace LumetraPlugin {
namespace {

using LumetraEditor::NewLook;
using Zorvik::Quindle::EffectsSettings;

/// How much of the full effect a blend amount leaves.
int PercentOf(int blendAmount)
{
    constexpr double Range = EffectsSettings::NoEffect - EffectsSettings::FullEffect;
    return static_cast<int>(std::lround(100 * (EffectsSettings::NoEffect - blendAmount) / Range));
}

bool HasEffects(const EffectsSettings& settings)
{
    const auto& effects = settings.Effects();
    return !effects.empty() && std::all_of(effects.begin(), effects.end(),
                                           [](const auto& effect) { return effect != nullptr; });
}

bool FitsItsIntensity(const NewLook& look)
{
    const int blend = look.settings.GetBlendAmount();
    const int most = look.intensity == NewLook::Intensity::None ? EffectsSettings::FullEffect
                                                                : EffectsSettings::NoEffect;
    return blend >= EffectsSettings::FullEffect && blend <= most;
}

} // namespace

QString HandedLook::FindFault(const NewLook& look, const QStringList& taken)
{
    const QString name = look.name.trimmed();
    const QString shown = LumetraHost::VisibleText::Make(name);
    const QString nameFault = PresetNames::FindFault(name);
    if (!nameFault.isEmpty())
        return tr("A look cannot have this name: %1").arg(nameFault);
    if (taken.contains(name))
        return tr("There is a look “%1” already.").arg(shown);
    if (!HasEffects(look.settings))
        return tr("The look “%1” has no effects.").arg(shown);
    if (!FitsItsIntensity(look))
        return tr("The look “%1” cannot be kept with the blend amount %2.")
            .arg(shown, QString::number(look.settings.GetBlendAmount()));
    return {};
}

PresetModel::PresetPtr HandedLook::MakePreset(const NewLook& look, PresetControllerFactory& factory)
{
    std::optional<int> intensity;
    if (look.intensity == NewLook::Intensity::Blend)
        intensity = PercentOf(look.settings.GetBlendAmount());
    return PresetMaker::Make(look.name.trimmed(), look.settings.EffectsConst(), intensity, factory);
}

} // namespace LumetraPlugin
