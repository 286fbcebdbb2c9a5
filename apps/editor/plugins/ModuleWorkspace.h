// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Lumetra/IWorkspaceController.h"
#include "Zorvik/Quindle/IQuindleDrawer.h"

#include <functional>
#include <memory>
#include <set>
#include <string>

namespace LumetraHost {
class Drawer;
class WorkspaceController;
} // namespace LumetraHost

namespace LumetraEditor {

/// Is told of the modules whose open packages another module, the first argument, has committed.
using CommitHandler =
    std::function<void(const std::string& module, const std::set<std::string>& owners)>;

/// The drawer as one module sees it: what the module applies carries its id, so that the edit knows
/// whose each layer is, and modules hear of each other's commits. Everything else is the drawer's
/// own, which is kept by reference.
class ModuleDrawer : public Zorvik::Quindle::IQuindleDrawer
{
public:
    ModuleDrawer(LumetraHost::Drawer& drawer, const std::string& module, CommitHandler committed);

    Zorvik::Quindle::EffectsSettingsPackage GetPackage(unsigned index) const override;
    unsigned GetDefaultPackageIndex() const override;
    unsigned GetPackageIndex(const std::string& packageName) const override;
    void ApplyEffect(const Zorvik::Quindle::EffectsSettings& effects,
                     const std::map<std::string, int>& options) override;
    void ApplyEffect(const Zorvik::Quindle::ConstEffectPtr& effect,
                     const std::map<std::string, int>& options) override;
    Zorvik::Quindle::IQuindleDrawerPainter& GetPainter() override;
    Zorvik::Proc::Frame RenderPreview(const Zorvik::Proc::FrameTarget& target,
                                      const Zorvik::Quindle::EffectsSettings& effects,
                                      int cropPolicy, int fitPolicy, unsigned flags) override;

private:
    LumetraHost::Drawer& m_drawer;
    std::string m_module;
    CommitHandler m_committed;
};

/// The workspace as one module sees it: the host's, with a drawer that knows the module. Keeps the
/// host's alive.
class ModuleWorkspace : public Zorvik::Lumetra::IWorkspaceController
{
public:
    ModuleWorkspace(std::shared_ptr<LumetraHost::WorkspaceController> host,
                    const std::string& module, CommitHandler committed);

    Zorvik::Quindle::IQuindleDrawer& GetCoreDrawer() override { return m_drawer; }
    Zorvik::Quindle::IStatisticsEventHandler& GetStatisticsEventHandler() override;
    const Zorvik::Util::IImageConverter& GetImageConverter() override;
    Zorvik::Lumetra::IResetReceiver& GetResetReceiver() override;
    Zorvik::Lumetra::IPresetRegistry& GetPresetRegistry() override;

private:
    std::shared_ptr<LumetraHost::WorkspaceController> m_host;
    ModuleDrawer m_drawer;
};

} // namespace LumetraEditor
