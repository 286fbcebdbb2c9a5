// SPDX-License-Identifier: MIT
#pragma once

#include "support/ModelSpy.h"
#include "support/ModelText.h"
#include "support/PresetBench.h"
#include "support/RecordingController.h"

#include "Settings/TuneSettingType.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace LumetraTest {

/// A preset model on the recording host, with a spy on all its signals.
class ModelFixture : public testing::Test, public PresetBench
{
protected:
    using SliderSetting = Zorvik::Lumetra::LumetraPresets::SliderSetting;
    using TuneSettingType = Zorvik::Lumetra::LumetraPresets::TuneSettingType;

    /// The log without lines with these prefixes, such as the notes of effects and presets.
    std::vector<std::string> TakeWithout(const std::vector<std::string>& prefixes)
    {
        std::vector<std::string> rest;
        for (const std::string& line : log.Take()) {
            const auto begins = [&line](const std::string& prefix) {
                return line.compare(0, prefix.size(), prefix) == 0;
            };
            if (std::none_of(prefixes.begin(), prefixes.end(), begins))
                rest.push_back(line);
        }
        return rest;
    }

    /// The whole log, a line each, after an empty one.
    std::string TakeText()
    {
        std::string text = "\n";
        for (const std::string& line : log.Take())
            text += line + "\n";
        return text;
    }

    /// The calls that reached the host and the views.
    std::vector<std::string> TakeOutside() { return TakeWithout({"effect(", "preset("}); }
    std::vector<std::string> TakeCalls() { return TakeWithout({"effect("}); }

    std::vector<std::string> Text(const std::vector<int>& roles) const
    {
        return ModelText(model, roles);
    }

    bool IsApplied(int group, int row) const
    {
        return model.data(At(group, row), Model::AppliedRole).toBool();
    }

    SliderSetting::List Sliders(int group, int row) const
    {
        return model.data(At(group, row), Model::SettingsValuesRole).value<SliderSetting::List>();
    }

    ModelSpy spy{log, model};
};

} // namespace LumetraTest
