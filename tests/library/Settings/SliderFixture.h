// SPDX-License-Identifier: MIT
#pragma once

#include "Settings/SliderSetting.h"
#include "Zorvik/Quindle/EffectRegistry.h"
#include "support/CallLog.h"
#include "support/RegisteredEffects.h"
#include "support/StoredForm.h"

#include <gtest/gtest.h>

namespace LumetraTest {

/// Slider settings read from their stored form, and recording effects to drive.
class SliderFixture : public testing::Test
{
protected:
    using SliderSetting = Zorvik::Lumetra::LumetraPresets::SliderSetting;
    using EffectList = Zorvik::Quindle::EffectList;
    using EffectPtr = Zorvik::Quindle::EffectPtr;

    /// One variable of a stored slider.
    static StoredNode Variable(const std::string& effectID, const std::string& parameter,
                               double begin, double end)
    {
        return {{"effectID", effectID}, {"setting", parameter}, {"begin", begin}, {"end", end}};
    }

    /// A stored slider from `begin` to `end` whose own name is "own".
    static StoredNode Stored(double begin, double end, const StoredList& variables)
    {
        return StoredNode(
            "own", {{"title", "Title"}, {"begin", begin}, {"end", end}, {"variables", variables}});
    }

    static SliderSetting Read(const StoredNode& node, bool isStrict = false)
    {
        SliderSetting slider(isStrict);
        slider.Deserialize(node.ToSerializer());
        return slider;
    }

    EffectPtr Make(const std::string& effectID)
    {
        return Zorvik::Quindle::EffectRegistry::Find(effectID)->create();
    }

    /// A tone effect with that gain.
    EffectPtr Tone(double gain)
    {
        const auto effect = Make("tone");
        effect->SetParameter("gain", gain);
        log.Clear();
        return effect;
    }

    double Gain(const EffectPtr& tone)
    {
        const CallLog::Pause pause(log);
        return tone->GetParameter("gain");
    }

    CallLog log;
    RegisteredEffects effects{log};
};

} // namespace LumetraTest
