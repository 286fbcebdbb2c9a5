// SPDX-License-Identifier: MIT
#include "EffectPresets/IEffectPresetController.h"

#include "EffectPresets/IEffectPresetControllerFactory.h"

namespace Zorvik::Lumetra::LumetraPresets {

IEffectPresetController::IEffectPresetController() = default;

IEffectPresetController::IEffectPresetController(const IEffectPresetController&)
    : WorkspaceReference(), IWorkspaceUser(), IRefCountable(), ISerializable()
{
}

IEffectPresetController&
IEffectPresetController::operator=(const IEffectPresetController&) = default;

IEffectPresetController::~IEffectPresetController() = default;

IEffectPresetControllerFactory::~IEffectPresetControllerFactory() = default;
IEffectPresetControllerFactory::IEffectPresetControllerFactory() = default;
IEffectPresetControllerFactory::IEffectPresetControllerFactory(
    const IEffectPresetControllerFactory&) = default;
IEffectPresetControllerFactory&
IEffectPresetControllerFactory::operator=(const IEffectPresetControllerFactory&) = default;

} // namespace Zorvik::Lumetra::LumetraPresets
