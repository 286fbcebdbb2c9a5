// SPDX-License-Identifier: MIT
#pragma once

#include "support/CallLog.h"
#include "support/RecordingWorkspace.h"
#include "support/RegisteredEffects.h"
#include "support/StoredForm.h"
#include "support/TestFactory.h"

#include "EffectPresets/EffectPresetModel.h"

#include <memory>
#include <string>
#include <vector>

namespace LumetraTest {

/// A preset model on the recording host, and short ways to fill it as a configuration parser does.
/// Everything lands in one log.
class PresetBench
{
public:
    using Model = Zorvik::Lumetra::LumetraPresets::EffectPresetModel;
    using ControllerPtr =
        boost::intrusive_ptr<Zorvik::Lumetra::LumetraPresets::IEffectPresetController>;

    // Pieces of a catalogue.
    /// An element of a list of effects: {effect: {id: "tone", gain: …, bias: …}}.
    static StoredNode Tone(double gain, double bias = 0);
    static StoredNode Grain(double amount);
    /// A preset with its effects under "settings".
    static StoredNode Preset(const std::string& name, const StoredList& effects);
    /// A preset with an intensity of its own.
    static StoredNode Preset(const std::string& name, const StoredList& effects,
                             const StoredNode& intensity);
    static StoredNode Blending(int value);
    /// A strict intensity slider 0..100 that drives tone's gain from 0 to 2.
    static StoredNode GainSlider();
    /// An extra slider 0..100 named `name` that drives `parameter` of the effect from 0 to 1.
    static StoredNode Slider(const std::string& effectID, const std::string& parameter);

    void ParseSliders(const StoredList& sliders);
    void ParseGroup(const std::string& name, const StoredList& presets,
                    const StoredNode& settings = {});
    void ParseUserData(const StoredNode& userData = {});
    void Attach();

    /// Sliders of tone's bias and grain's amount; group "Film" with "Warm" (blending at 80, tone)
    /// and "Soft" (gain slider, tone and grain), group "Plain" with "Bare" (no intensity, tone);
    /// an empty user group; attached. The log is cleared.
    void FillAndAttach();

    QModelIndex Group(int group) const;
    QModelIndex At(int group, int row) const;
    bool Set(const QModelIndex& index, int role, const QVariant& value);
    /// The user data that the model writes.
    std::string StoredUserData() const;

    CallLog log;
    RegisteredEffects effects{log};
    std::shared_ptr<RecordingWorkspace> workspace = std::make_shared<RecordingWorkspace>(log);
    std::shared_ptr<TestFactory> factory = std::make_shared<TestFactory>(log);
    Model model{factory};
};

} // namespace LumetraTest
