// SPDX-License-Identifier: MIT
#include "support/TestFactory.h"

#include "support/RecordingController.h"

#include <stdexcept>

namespace LumetraTest {

using Zorvik::Lumetra::LumetraPresets::IEffectPresetController;

TestFactory::TestFactory(CallLog& log) : m_log(log) {}

boost::intrusive_ptr<IEffectPresetController> TestFactory::CreateController(const std::string& kind)
{
    m_log.Call("factory.CreateController", kind);
    if (kind == "broken")
        throw std::runtime_error("no preset of this kind");
    const boost::intrusive_ptr<RecordingController> controller(
        new RecordingController(m_log, PackageName));
    controller->SetApplySettingsOnProgress(kind == "progress");
    controller->SetDownloadable(kind == "download");
    controller->SetWaitApply(kind == "waiting");
    return controller;
}

boost::intrusive_ptr<IEffectPresetController>
TestFactory::CopyController(const boost::intrusive_ptr<IEffectPresetController>& source)
{
    m_log.Call("factory.CopyController", source->GetName());
    return new RecordingController(dynamic_cast<const RecordingController&>(*source));
}

} // namespace LumetraTest
