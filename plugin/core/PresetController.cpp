// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/PresetController.h"

#include "Settings/SliderSetting.h"

#include <QImage>

#include <algorithm>

namespace LumetraPlugin {
namespace {

using Zorvik::Lumetra::LumetraPresets::SliderSetting;
using Zorvik::Quindle::IEffectSettings;

constexpr unsigned DraftFlag = 1;

} // namespace

PresetController::PresetController(const std::string& packageName,
                                   const std::shared_ptr<const PreviewOptions>& previews)
    : EffectPresetControllerBase(packageName), m_previews(previews)
{
}

PresetController::PresetController(const PresetController&) = default;
PresetController::~PresetController() = default;

boost::intrusive_ptr<PresetController> PresetController::Copy() const
{
    return new PresetController(*this);
}

bool PresetController::ApplySettingsOnProgress() const
{
    return true;
}

/// A slider intensity can only be shown on a preview list that has all of its effects.
void PresetController::BringIntensityIntoPreview()
{
    const auto* slider = dynamic_cast<const SliderSetting*>(&Intensity());
    const auto effectIDs = slider ? slider->GetEffectIDs() : std::set<std::string>();
    const auto& effects = m_previewEffectSettings.Effects();
    const bool fits = std::all_of(effectIDs.begin(), effectIDs.end(), [&](const auto& effectID) {
        return IEffectSettings::Find(effects, effectID) != nullptr;
    });
    if (fits)
        Intensity().SaveValue(m_previewEffectSettings);
}

QImage PresetController::GetPreviewImage()
{
    BringIntensityIntoPreview();
    return GetImagePreviewInternal(m_previews->size, m_previews->isDraft ? DraftFlag : 0);
}

std::string PresetController::GetStatisticEventNameClick() const
{
    return EVENT_CLICK;
}

std::string PresetController::GetStatisticEventNameApply() const
{
    return EVENT_APPLY;
}

std::string PresetController::GetStatisticEventNameReset() const
{
    return EVENT_RESET;
}

std::string PresetController::GetStatisticEventNameFavoriteAdd() const
{
    return EVENT_FAVOURITE_ADD;
}

std::string PresetController::GetStatisticEventNameFavoriteRemove() const
{
    return EVENT_FAVOURITE_REMOVE;
}

} // namespace LumetraPlugin
