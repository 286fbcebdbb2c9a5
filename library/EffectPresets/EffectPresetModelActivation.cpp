// SPDX-License-Identifier: MIT
// This part of the model keeps one preset applied at a time, and does pending changes and the
// workspace.
#include "EffectPresets/EffectPresetModel.h"
#include "Zorvik/Lumetra/IWorkspaceController.h"
#include "Zorvik/Quindle/EffectsSettings.h"

namespace Zorvik::Lumetra::LumetraPresets {

void EffectPresetModel::DeactivatePresets(const ControllerPtr& keep)
{
    ForEachPreset([&keep](std::size_t, const ControllerPtr& controller) {
        if (controller != keep && controller->IsApplied())
            controller->SetApplied(false, false);
    });
}

/// Returns the applied preset, the last one if there are several. Without one the result is null,
/// and `groupIndex` is left alone.
EffectPresetModel::ControllerPtr EffectPresetModel::GetActivePreset(std::size_t& groupIndex) const
{
    ControllerPtr active;
    ForEachPreset([&](std::size_t group, const ControllerPtr& controller) {
        if (!controller->IsApplied())
            return;
        active = controller;
        groupIndex = group;
    });
    return active;
}

void EffectPresetModel::ActivatePreset(const std::string& id,
                                       const Quindle::EffectsSettings& effects)
{
    ControllerPtr found;
    ForEachPreset([&](std::size_t, const ControllerPtr& controller) {
        if (controller->GetID() != id)
            return;
        controller->Load(effects.EffectsConst());
        controller->SetIntensityFromEffectSettings(effects);
        found = controller;
    });
    DeactivatePresets(found);
    emit dataChanged(QModelIndex(), QModelIndex(), {AppliedRole});
}

void EffectPresetModel::ActivatePreset(const std::string& id,
                                       const Quindle::ConstEffectList& effects)
{
    Quindle::EffectsSettings settings(Quindle::EffectsSettings::PhotoAlone);
    settings.SetEffectsConst(effects);
    ActivatePreset(id, settings);
}

void EffectPresetModel::ApplyCurrentChanges(bool commit)
{
    std::size_t ignored = 0;
    const ControllerPtr active = GetActivePreset(ignored);
    if (!active)
        return;
    if (commit)
        active->SaveChanges();
    else
        setData(indexForItem(active), QVariant(false), AppliedRole);
}

void EffectPresetModel::DiscardUserChanges()
{
    ForEachPreset(
        [](std::size_t, const ControllerPtr& controller) { controller->ResetSettingsValues(); });
    SetResetIndex(Quindle::EffectsSettingsPackage::NoIndex);
}

bool EffectPresetModel::HasUnsavedChanges() const
{
    std::size_t ignored = 0;
    return GetActivePreset(ignored) != nullptr;
}

void EffectPresetModel::SetResetIndex(unsigned int index)
{
    ForEachPreset([index](std::size_t, const ControllerPtr& controller) {
        controller->SetResetIndex(index);
    });
}

void EffectPresetModel::SetWorkspaceController(
    const std::weak_ptr<IWorkspaceController>& controller)
{
    IWorkspaceUser::SetWorkspaceController(controller);
    ForEachPreset([&controller](std::size_t, const ControllerPtr& preset) {
        preset->SetWorkspaceController(controller);
    });
    emit dataChanged(QModelIndex(), QModelIndex());

    const auto workspace = GetWorkspaceController(false);
    if (!workspace)
        return;
    std::vector<std::pair<std::string, std::string>> idsAndStoreIds;
    ForEachPreset([&](std::size_t group, const ControllerPtr& preset) {
        idsAndStoreIds.emplace_back(preset->GetID(), m_groups[group].info.appStoreId);
    });
    workspace->GetPresetRegistry().RegisterPresets(idsAndStoreIds);
}

} // namespace Zorvik::Lumetra::LumetraPresets
