// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/commands/HandedLook.h"

#include "Zorvik/Quindle/EffectRegistry.h"
#include "catalogue/VisibleText.h"
#include "core/PresetControllerFactory.h"
#include "core/PresetMaker.h"
#include "core/PresetNames.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace LumetraPlugin {
namespace {

using LumetraEditor::LookSlider;
using LumetraEditor::LookVariable;
using LumetraEditor::NewLook;
using Zorvik::Quindle::EffectRegistry;
using Zorvik::Quindle::EffectsSettings;
using Zorvik::Quindle::IEffectSettings;

constexpr int WholeIntensity = 100;

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
    const int most = look.intensity == NewLook::Intensity::Blend ? EffectsSettings::NoEffect
                                                                 : EffectsSettings::FullEffect;
    return blend >= EffectsSettings::FullEffect && blend <= most;
}

PresetMaker::Slider ToSlider(const LookSlider& given)
{
    PresetMaker::Slider slider{given.title, given.begin, given.end, {}};
    for (const LookVariable& variable : given.variables)
        slider.variables.push_back(
            {variable.effectID, variable.parameter, variable.begin, variable.end});
    return slider;
}

/// The intensity of a look, which goes from 0 to 100 per cent.
LookSlider IntensityOf(const NewLook& look)
{
    return {QString(), 0, WholeIntensity, look.variables};
}

bool CanMove(const LookVariable& variable, const NewLook& look)
{
    const auto descriptor = EffectRegistry::Find(variable.effectID);
    if (!descriptor || !IEffectSettings::Find(look.settings.Effects(), variable.effectID))
        return false;
    const auto& parameters = descriptor->parameters;
    const auto found = std::find_if(parameters.begin(), parameters.end(), [&](const auto& one) {
        return one.name == variable.parameter;
    });
    const auto isWithin = [&found](double value) {
        return value >= found->minimum && value <= found->maximum;
    };
    return found != parameters.end() && isWithin(variable.begin) && isWithin(variable.end) &&
           variable.begin != variable.end;
}

bool CanMove(const LookSlider& slider, const NewLook& look)
{
    return slider.begin < slider.end && !slider.variables.empty() &&
           std::all_of(slider.variables.begin(), slider.variables.end(),
                       [&look](const LookVariable& one) { return CanMove(one, look); });
}

/// True when the intensity moves a parameter of the slider, which then would do nothing.
bool IsTaken(const LookSlider& slider, const NewLook& look)
{
    const auto isSame = [](const LookVariable& a, const LookVariable& b) {
        return a.effectID == b.effectID && a.parameter == b.parameter;
    };
    return std::find_first_of(slider.variables.begin(), slider.variables.end(),
                              look.variables.begin(), look.variables.end(),
                              isSame) != slider.variables.end();
}

/// The title of the first slider that does not fit the look; nothing when all fit.
std::optional<QString> FindUnfitSlider(const NewLook& look)
{
    const bool isSlider = look.intensity == NewLook::Intensity::Sliders;
    if (isSlider && !CanMove(IntensityOf(look), look))
        return HandedLook::tr("Intensity");
    for (const LookSlider& slider : look.sliders.value_or(std::vector<LookSlider>()))
        if (!CanMove(slider, look) || (isSlider && IsTaken(slider, look)))
            return slider.title;
    return std::nullopt;
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
    if (const auto slider = FindUnfitSlider(look))
        return tr("The look “%1” cannot have the slider “%2”: it moves nothing of the look, or "
                  "what the intensity moves.")
            .arg(shown, LumetraHost::VisibleText::Make(*slider));
    return {};
}

PresetModel::PresetPtr HandedLook::MakePreset(const NewLook& look, PresetControllerFactory& factory)
{
    PresetMaker::Content content{look.name.trimmed(), look.settings.EffectsConst(), {}};
    if (look.intensity == NewLook::Intensity::Blend)
        content.blend = PercentOf(look.settings.GetBlendAmount());
    if (look.intensity == NewLook::Intensity::Sliders)
        content.intensity = ToSlider(IntensityOf(look));
    if (look.sliders) {
        content.sliders.emplace();
        for (const LookSlider& slider : *look.sliders)
            content.sliders->push_back(ToSlider(slider));
    }
    return PresetMaker::Make(content, factory);
}

} // namespace LumetraPlugin
