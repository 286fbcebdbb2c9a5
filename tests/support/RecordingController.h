// SPDX-License-Identifier: MIT
#pragma once

#include "support/CallLog.h"
#include "support/TestController.h"

namespace LumetraTest {

/// A working preset that also records what the model asks it to do, by its name:
/// "preset(Warm).SetApplied(true, true)". Plain getters are not recorded: how often the model looks
/// is its own affair.
class RecordingController : public TestController
{
public:
    RecordingController(CallLog& log, const std::string& packageName);
    RecordingController(const RecordingController& other);

    void SetWorkspaceController(
        const std::weak_ptr<Zorvik::Lumetra::IWorkspaceController>& controller) override;
    void InitDefaultSettings(
        const std::vector<Zorvik::Lumetra::LumetraPresets::SliderSetting>& sliders) override;
    void InitIntensity(const Zorvik::Brassel::ConstSerializerPtr& node) override;
    void Load(const Zorvik::Quindle::ConstEffectList& effects) override;
    void SetResetIndex(unsigned int index) override;
    void SetName(const std::string& name) override;
    void SetGroupInfo(const std::string& group, bool editable) override;
    void SetApplied(bool applied, bool notify) override;
    void SaveChanges() override;
    void SetFavourite(bool favourite) override;
    void SetIntensity(int value, bool live) override;
    void SetIntensityFromEffectSettings(const Zorvik::Quindle::EffectsSettings& effects) override;
    void IntensityChangeEnd() override;
    void SetDownloadedResource(const std::string& resource) override;
    QImage GetPreviewImage() override;
    bool SetSettingsValues(
        const std::vector<Zorvik::Lumetra::LumetraPresets::SliderSetting>& values) override;
    bool ResetSettingsValues() override;

protected:
    void Serialize(const Zorvik::Brassel::SerializerPtr& node) const override;
    void Deserialize(const Zorvik::Brassel::ConstSerializerPtr& node) override;

private:
    std::string Self(const char* operation) const
    {
        return "preset(" + GetName() + ")." + operation;
    }

    CallLog& m_log;
};

} // namespace LumetraTest
