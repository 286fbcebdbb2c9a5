// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/PresetCollection.h"

namespace LumetraHost {
class Image;
class WorkspaceController;
} // namespace LumetraHost

namespace LumetraPlugin {

/// Presets together with a workspace of their own, the engine's effects and the photo in it, for
/// programs without an editor. Photos may follow each other; there is one at a time.
class PresetSession : public PresetCollection
{
public:
    /// See PresetCollection.
    explicit PresetSession(const std::string& packageName);
    ~PresetSession();

    LumetraHost::WorkspaceController& GetWorkspace() { return *m_workspace; }

    /// Replaces the photo. All presets start unapplied, with their catalogue's values.
    void OpenPhoto(const LumetraHost::Image& photo);
    void ClosePhoto();

private:
    explicit PresetSession(const std::string& packageName,
                           const std::shared_ptr<LumetraHost::WorkspaceController>& workspace);

    std::shared_ptr<LumetraHost::WorkspaceController> m_workspace;
};

} // namespace LumetraPlugin
