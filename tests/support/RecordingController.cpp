// SPDX-License-Identifier: MIT
#include "support/RecordingController.h"

#include "Zorvik/Brassel/ISerializer.h"

namespace LumetraTest {

using namespace Zorvik;
using Lumetra::LumetraPresets::SliderSetting;

namespace {

std::string ValuesText(const std::vector<SliderSetting>& sliders)
{
    std::vector<std::string> texts;
    for (const SliderSetting& slider : sliders)
        texts.push_back(slider.EffectID() + "=" + CallText(slider.Value()));
    return "[" + JoinTexts(texts) + "]";
}

} // namespace

RecordingController::RecordingController(CallLog& log, const std::string& packageName)
    : TestController(packageName), m_log(log)
{
}

RecordingController::RecordingController(const RecordingController& other)
    : WorkspaceReference(), IWorkspaceUser(), IRefCountable(), ISerializable(),
      IEffectPresetController(), TestController(other), m_log(other.m_log)
{
}

void RecordingController::SetWorkspaceController(
    const std::weak_ptr<Lumetra::IWorkspaceController>& controller)
{
    m_log.Add(Self("SetWorkspaceController(") + (controller.expired() ? "none)" : "workspace)"));
    TestController::SetWorkspaceController(controller);
}

void RecordingController::InitDefaultSettings(const std::vector<SliderSetting>& sliders)
{
    m_log.Add(Self("InitDefaultSettings(") + ValuesText(sliders) + ")");
    TestController::InitDefaultSettings(sliders);
}

void RecordingController::InitIntensity(const Brassel::ConstSerializerPtr& node)
{
    m_log.Add(Self("InitIntensity(") + (node ? node->GetPath() : "none") + ")");
    TestController::InitIntensity(node);
}

void RecordingController::Load(const Quindle::ConstEffectList& effects)
{
    m_log.Call(Self("Load"), effects);
    TestController::Load(effects);
}

void RecordingController::SetResetIndex(unsigned int index)
{
    m_log.Call(Self("SetResetIndex"), index);
    TestController::SetResetIndex(index);
}

void RecordingController::SetName(const std::string& name)
{
    m_log.Call(Self("SetName"), name);
    TestController::SetName(name);
}

void RecordingController::SetGroupInfo(const std::string& group, bool editable)
{
    m_log.Call(Self("SetGroupInfo"), group, editable);
    TestController::SetGroupInfo(group, editable);
}

void RecordingController::SetApplied(bool applied, bool notify)
{
    m_log.Call(Self("SetApplied"), applied, notify);
    TestController::SetApplied(applied, notify);
}

void RecordingController::SaveChanges()
{
    m_log.Call(Self("SaveChanges"));
    TestController::SaveChanges();
}

void RecordingController::SetFavourite(bool favourite)
{
    m_log.Call(Self("SetFavourite"), favourite);
    TestController::SetFavourite(favourite);
}

void RecordingController::SetIntensity(int value, bool live)
{
    m_log.Call(Self("SetIntensity"), value, live);
    TestController::SetIntensity(value, live);
}

void RecordingController::SetIntensityFromEffectSettings(const Quindle::EffectsSettings& effects)
{
    m_log.Call(Self("SetIntensityFromEffectSettings"), effects);
    TestController::SetIntensityFromEffectSettings(effects);
}

void RecordingController::IntensityChangeEnd()
{
    m_log.Call(Self("IntensityChangeEnd"));
    TestController::IntensityChangeEnd();
}

void RecordingController::SetDownloadedResource(const std::string& resource)
{
    m_log.Call(Self("SetDownloadedResource"), resource);
    TestController::SetDownloadedResource(resource);
}

QImage RecordingController::GetPreviewImage()
{
    m_log.Call(Self("GetPreviewImage"));
    return TestController::GetPreviewImage();
}

bool RecordingController::SetSettingsValues(const std::vector<SliderSetting>& values)
{
    m_log.Add(Self("SetSettingsValues(") + ValuesText(values) + ")");
    return TestController::SetSettingsValues(values);
}

bool RecordingController::ResetSettingsValues()
{
    m_log.Call(Self("ResetSettingsValues"));
    return TestController::ResetSettingsValues();
}

void RecordingController::Serialize(const Brassel::SerializerPtr& node) const
{
    m_log.Add(Self("Serialize(") + node->GetPath() + ")");
    TestController::Serialize(node);
}

void RecordingController::Deserialize(const Brassel::ConstSerializerPtr& node)
{
    m_log.Add(Self("Deserialize(") + (node ? node->GetPath() : "none") + ")");
    TestController::Deserialize(node);
}

} // namespace LumetraTest
