// SPDX-License-Identifier: MIT
#pragma once

#include "OpenController.h"

#include "support/CallLog.h"
#include "support/PresetBench.h"
#include "support/RecordingWorkspace.h"
#include "support/RegisteredEffects.h"
#include "support/StoredForm.h"

#include "Zorvik/Lumetra/IObjectsConnectorID.h"
#include "Zorvik/Util/ObjectsConnector.h"

#include <gmock/gmock.h>

namespace LumetraTest {

/// One preset at a time, on the recording host.
class ControllerFixture : public testing::Test
{
protected:
    using Bench = PresetBench;
    using SliderSetting = Zorvik::Lumetra::LumetraPresets::SliderSetting;

    static SliderSetting ReadSlider(const StoredNode& node)
    {
        SliderSetting slider(false);
        slider.Deserialize(node.ToSerializer());
        return slider;
    }

    static std::vector<SliderSetting> BiasAndAmount()
    {
        return {ReadSlider(Bench::Slider("tone", "bias")),
                ReadSlider(Bench::Slider("grain", "amount"))};
    }

    static std::vector<int> Values(const std::vector<SliderSetting>& sliders)
    {
        std::vector<int> values;
        for (const SliderSetting& slider : sliders)
            values.push_back(slider.Value());
        return values;
    }

    /// Builds a preset as the model does, in group "Film".
    OpenController::Ptr Build(const StoredNode& preset,
                              const std::vector<SliderSetting>& sliders = {})
    {
        const auto controller = OpenController::Create();
        const auto node = preset.ToSerializer("preset");
        controller->Deserialize(node);
        controller->SetGroupInfo("Film", false);
        controller->InitDefaultSettings(sliders);
        controller->InitIntensity(node->GetNode("intensity"));
        log.Clear();
        return controller;
    }

    OpenController::Ptr BuildAttached(const StoredNode& preset,
                                      const std::vector<SliderSetting>& sliders = {})
    {
        const auto controller = Build(preset, sliders);
        controller->SetWorkspaceController(workspace);
        return controller;
    }

    static void LockDrawer(bool isLocked)
    {
        using Zorvik::Lumetra::LumetraInt::IObjectsConnectorID;
        Zorvik::Util::ObjectsConnector::sendMessage(IObjectsConnectorID::CORE_DRAWER_LOCK,
                                                    {isLocked});
    }

    /// The log without what the effects note.
    std::vector<std::string> TakeHostCalls()
    {
        std::vector<std::string> calls;
        for (const std::string& line : log.Take())
            if (line.compare(0, 7, "effect(") != 0)
                calls.push_back(line);
        return calls;
    }

    CallLog log;
    RegisteredEffects effects{log};
    std::shared_ptr<RecordingWorkspace> workspace = std::make_shared<RecordingWorkspace>(log);
};

} // namespace LumetraTest
