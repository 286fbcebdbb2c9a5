// SPDX-License-Identifier: MIT
#pragma once

#include "support/CallLog.h"

#include "EffectPresets/IEffectPresetControllerFactory.h"

namespace LumetraTest {

/// Makes RecordingControllers of the package "Looks" and records the requests. The kind "progress"
/// applies changed sliders at once, "download" is yet to be downloaded, "waiting" waits for the
/// rendering, "broken" throws; every other kind is a plain one.
class TestFactory : public Zorvik::Lumetra::LumetraPresets::IEffectPresetControllerFactory
{
public:
    static constexpr char PackageName[] = "Looks";

    explicit TestFactory(CallLog& log);

    boost::intrusive_ptr<Zorvik::Lumetra::LumetraPresets::IEffectPresetController>
    CreateController(const std::string& kind) override;
    boost::intrusive_ptr<Zorvik::Lumetra::LumetraPresets::IEffectPresetController> CopyController(
        const boost::intrusive_ptr<Zorvik::Lumetra::LumetraPresets::IEffectPresetController>&
            source) override;

private:
    CallLog& m_log;
};

} // namespace LumetraTest
