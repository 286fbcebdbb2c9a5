// SPDX-License-Identifier: GPL-2.0-or-later
#include "plugins/ModuleWorkspace.h"

#include "workspace/WorkspaceController.h"

#include <utility>

namespace LumetraEditor {

using Zorvik::Quindle::EffectsSettings;

ModuleDrawer::ModuleDrawer(LumetraHost::Drawer& drawer, const std::string& module,
                           CommitHandler committed)
    : m_drawer(drawer), m_module(module), m_committed(std::move(committed))
{
}

Zorvik::Quindle::EffectsSettingsPackage ModuleDrawer::GetPackage(unsigned index) const
{
    return m_drawer.GetPackage(index);
}

unsigned ModuleDrawer::GetDefaultPackageIndex() const
{
    return m_drawer.GetDefaultPackageIndex();
}

unsigned ModuleDrawer::GetPackageIndex(const std::string& packageName) const
{
    return m_drawer.GetPackageIndex(packageName);
}

void ModuleDrawer::ApplyEffect(const EffectsSettings& effects,
                               const std::map<std::string, int>& /*options*/)
{
    m_drawer.ApplyAs(m_module, effects);
}

void ModuleDrawer::ApplyEffect(const Zorvik::Quindle::ConstEffectPtr& effect,
                               const std::map<std::string, int>& /*options*/)
{
    const auto stack = m_drawer.GetStack();
    std::set<std::string> owners;
    const std::size_t committed = m_drawer.CountCommitted();
    for (std::size_t i = committed; i < committed + m_drawer.CountOpen(); ++i)
        owners.insert(stack[i].origin);
    m_drawer.CommitAs(m_module, effect);
    m_committed(m_module, owners);
}

Zorvik::Quindle::IQuindleDrawerPainter& ModuleDrawer::GetPainter()
{
    return m_drawer.GetPainter();
}

Zorvik::Proc::Frame ModuleDrawer::RenderPreview(const Zorvik::Proc::FrameTarget& target,
                                                const EffectsSettings& effects, int cropPolicy,
                                                int fitPolicy, unsigned flags)
{
    return m_drawer.RenderPreview(target, effects, cropPolicy, fitPolicy, flags);
}

ModuleWorkspace::ModuleWorkspace(std::shared_ptr<LumetraHost::WorkspaceController> host,
                                 const std::string& module, CommitHandler committed)
    : m_host(std::move(host)), m_drawer(m_host->GetDrawer(), module, std::move(committed))
{
}

Zorvik::Quindle::IStatisticsEventHandler& ModuleWorkspace::GetStatisticsEventHandler()
{
    return m_host->GetStatisticsEventHandler();
}

const Zorvik::Util::IImageConverter& ModuleWorkspace::GetImageConverter()
{
    return m_host->GetImageConverter();
}

Zorvik::Lumetra::IResetReceiver& ModuleWorkspace::GetResetReceiver()
{
    return m_host->GetResetReceiver();
}

Zorvik::Lumetra::IPresetRegistry& ModuleWorkspace::GetPresetRegistry()
{
    return m_host->GetPresetRegistry();
}

} // namespace LumetraEditor
