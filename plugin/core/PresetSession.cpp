// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/PresetSession.h"

#include "engine/effects/EffectKinds.h"
#include "workspace/WorkspaceController.h"

namespace LumetraPlugin {

using LumetraHost::Image;
using LumetraHost::WorkspaceController;

PresetSession::PresetSession(const std::string& packageName)
    : PresetSession(packageName, std::make_shared<WorkspaceController>())
{
}

PresetSession::PresetSession(const std::string& packageName,
                             const std::shared_ptr<WorkspaceController>& workspace)
    : PresetCollection(packageName, workspace), m_workspace(workspace)
{
    LumetraHost::RegisterEffects();
}

PresetSession::~PresetSession() = default;

void PresetSession::OpenPhoto(const Image& photo)
{
    m_workspace->GetDrawer().SetPhoto(photo);
    StartPhoto();
}

void PresetSession::ClosePhoto()
{
    OpenPhoto(Image());
}

} // namespace LumetraPlugin
