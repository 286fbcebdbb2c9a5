// SPDX-License-Identifier: MIT
// The recording host must keep the contracts of every host, or tests that use it prove nothing.
#include "contract/DrawerContract.h"
#include "contract/WorkspacePartsContract.h"

#include "support/CallLog.h"
#include "support/RecordingWorkspace.h"
#include "support/RegisteredEffects.h"

namespace LumetraTest {
namespace {

using namespace Zorvik::Quindle;

class RecordingDrawerSubject
{
public:
    IQuindleDrawer& GetDrawer() { return m_workspace.GetCoreDrawer(); }
    Zorvik::Lumetra::IResetReceiver& GetResetReceiver() { return m_workspace.GetResetReceiver(); }
    void ClosePhoto() { m_workspace.GetDrawer().SetPhotoSize(0, 0); }

    EffectPtr MakeEffect(double amount) const
    {
        const auto effect = EffectSettingsImpl::Create("plain");
        effect->SetParameter("amount", amount);
        return effect;
    }

    EffectPtr MakeOtherEffect() const { return EffectRegistry::Find("grain")->create(); }

    /// Leaves out names of packages, which are not seen.
    std::string GetShown()
    {
        std::string shown;
        for (const std::string& layer : m_workspace.GetDrawer().GetStack().GetShown())
            shown += Seen(layer) + "\n";
        return shown;
    }

private:
    static std::string Seen(const std::string& layer)
    {
        const auto package = layer.find(" in ");
        if (package == std::string::npos)
            return layer;
        return layer.substr(0, package) + layer.substr(layer.find(" blend "));
    }

    CallLog m_log;
    RegisteredEffects m_effects{m_log};
    RecordingWorkspace m_workspace{m_log};
};

class RecordingPartsSubject
{
public:
    std::shared_ptr<RecordingWorkspace> GetWorkspace() { return m_workspace; }
    RecordingRegistry::List GetPresets() const { return m_workspace->GetRegistry().GetPresets(); }
    std::vector<RecordingStatistics::Event> GetEvents() const
    {
        return m_workspace->GetStatistics().GetEvents();
    }

private:
    CallLog m_log;
    std::shared_ptr<RecordingWorkspace> m_workspace = std::make_shared<RecordingWorkspace>(m_log);
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Recording, DrawerContract, RecordingDrawerSubject);
INSTANTIATE_TYPED_TEST_SUITE_P(Recording, WorkspacePartsContract, RecordingPartsSubject);

} // namespace LumetraTest
