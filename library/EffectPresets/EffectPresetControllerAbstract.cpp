// SPDX-License-Identifier: MIT
#include "EffectPresets/EffectPresetControllerAbstract.h"

#include "EffectPresets/PresetKeys.h"
#include "Settings/IntensitySettingEmpty.h"
#include "Settings/IntensitySettingsFactory.h"
#include "Settings/NodeOrEmpty.h"
#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Brassel/SettingsKeys.h"
#include "Zorvik/Lumetra/IWorkspaceController.h"
#include "Zorvik/Quindle/EffectSettingsImpl.h"
#include "Zorvik/Quindle/IQuindleDrawer.h"
#include "Zorvik/Quindle/IStatisticsEventHandler.h"
#include "Zorvik/Util/ImageUtils.h"

#include <QSize>
#include <QUuid>

#include <algorithm>

namespace Zorvik::Lumetra::LumetraPresets {
namespace {

using Brassel::Settings::EffectInfo;
using Quindle::EffectsSettings;
using Quindle::IEffectSettings;
using Quindle::IQuindleDrawer;

constexpr Proc::Color ReadColor(18, 33, 52, 255);

std::string NewID()
{
    return QUuid::createUuid().toString().toUtf8().toStdString();
}

EffectsSettings ReadEffects(const Brassel::ISerializer& node)
{
    EffectsSettings effects(EffectsSettings::PhotoAlone);
    const auto items = node.GetCollection(IEffectSettings::EFFECTS);
    for (std::size_t i = 0; items && i < items->GetCount(); ++i) {
        const auto item = items->GetElement(i);
        const auto effect =
            IEffectSettings::CreateEffectSettings(item->GetNode(IEffectSettings::EFFECT));
        item->ReadObject(IEffectSettings::EFFECT, *effect);
        effects.Effects().push_back(effect);
    }
    return effects;
}

} // namespace

EffectPresetControllerAbstract::EffectPresetControllerAbstract()
    : m_effectSettings(EffectsSettings::PhotoAlone),
      m_previewEffectSettings(EffectsSettings::PhotoAlone)
{
}

EffectPresetControllerAbstract::EffectPresetControllerAbstract(
    const EffectPresetControllerAbstract& other)
    : WorkspaceReference(), IWorkspaceUser(), IRefCountable(), ISerializable(),
      IEffectPresetController(), m_effectSettings(other.m_effectSettings),
      m_previewEffectSettings(other.m_previewEffectSettings), m_name(other.m_name), m_id(NewID()),
      m_intensitySetting(other.m_intensitySetting ? other.m_intensitySetting->Clone() : nullptr),
      m_settings(other.m_settings), m_defaultSettings(other.m_settings)
{
}

EffectPresetControllerAbstract::~EffectPresetControllerAbstract() = default;

IIntensitySetting& EffectPresetControllerAbstract::Intensity() const
{
    static IntensitySettingEmpty none;
    return m_intensitySetting ? *m_intensitySetting : none;
}

void EffectPresetControllerAbstract::SetWorkspaceController(
    const std::weak_ptr<IWorkspaceController>& controller)
{
    IWorkspaceUser::SetWorkspaceController(controller);
    ResetSettings();
    m_applied = false;
    m_resetIndex = Quindle::EffectsSettingsPackage::NoIndex;
}

void EffectPresetControllerAbstract::InitDefaultSettings(const std::vector<SliderSetting>& sliders)
{
    const Quindle::ConstEffectList effects = m_effectSettings.EffectsConst();
    m_defaultSettings.reserve(m_defaultSettings.size() + sliders.size());
    for (SliderSetting slider : sliders)
        if (slider.LoadValue(effects))
            m_defaultSettings.push_back(std::move(slider));
    ResetSettings();
}

/// A slider takes its start from the effects; a blending setting imposes its start on the effects.
void EffectPresetControllerAbstract::InitIntensity(const Brassel::ConstSerializerPtr& node)
{
    m_intensitySetting = IntensitySettingsFactory().Create(node);
    switch (m_intensitySetting->GetType()) {
    case IntensitySettingType::Slider:
        m_intensitySetting->LoadValue(m_effectSettings);
        break;
    case IntensitySettingType::Blending:
        m_intensitySetting->SaveValue(m_effectSettings);
        break;
    case IntensitySettingType::None:
        break;
    }
}

void EffectPresetControllerAbstract::Load(const Quindle::ConstEffectList& effects)
{
    m_applied = true;
    for (SliderSetting& slider : m_settings)
        slider.LoadValue(effects);
}

Quindle::ConstEffectList EffectPresetControllerAbstract::GetEffectInfo(bool useDefaults) const
{
    const auto effects = GetEffectInfoInternal(useDefaults);
    return Quindle::ConstEffectList(effects.begin(), effects.end());
}

Quindle::EffectList EffectPresetControllerAbstract::GetEffectInfoInternal(bool useDefaults) const
{
    Quindle::EffectList effects = m_effectSettings.Effects();
    for (const SliderSetting& slider : useDefaults ? m_defaultSettings : m_settings)
        slider.SaveValue(effects);
    return effects;
}

void EffectPresetControllerAbstract::ResetSettings()
{
    m_settings = m_defaultSettings;
}

void EffectPresetControllerAbstract::SetResetIndex(unsigned int index)
{
    m_resetIndex = index;
}

const std::string& EffectPresetControllerAbstract::GetName() const
{
    return m_name;
}

void EffectPresetControllerAbstract::SetName(const std::string& name)
{
    m_name = name;
}

void EffectPresetControllerAbstract::SetGroupInfo(const std::string& group, bool editable)
{
    m_group = group;
    m_groupEditable = editable;
}

const std::string& EffectPresetControllerAbstract::GetID() const
{
    return m_id;
}

bool EffectPresetControllerAbstract::IsApplied() const
{
    return m_applied;
}

void EffectPresetControllerAbstract::SetApplied(bool applied, bool notify)
{
    const bool wasApplied = m_applied;
    m_applied = applied;
    if (!notify)
        return;
    if (applied) {
        ApplyInternal();
        TrackEvent(GetStatisticEventNameClick());
    } else if (wasApplied) {
        ResetInternal();
        if (!m_committed)
            TrackEvent(GetStatisticEventNameReset());
    }
    m_committed = false;
}

void EffectPresetControllerAbstract::SaveChanges()
{
    const auto workspace = GetWorkspaceController(true);
    const Quindle::ConstEffectPtr empty =
        Quindle::EffectSettingsImpl::Create(Proc::SettingsEffectEmpty());
    workspace->GetCoreDrawer().ApplyEffect(empty, std::map<std::string, int>());
    m_committed = true;
    TrackEvent(GetStatisticEventNameApply());
}

bool EffectPresetControllerAbstract::IsFavourite() const
{
    return m_favourite;
}

void EffectPresetControllerAbstract::SetFavourite(bool favourite)
{
    m_favourite = favourite;
    TrackEvent(favourite ? GetStatisticEventNameFavoriteAdd()
                         : GetStatisticEventNameFavoriteRemove());
}

bool EffectPresetControllerAbstract::IsPopular() const
{
    return m_popular;
}

int EffectPresetControllerAbstract::IntensityMin() const
{
    return Intensity().Min();
}

int EffectPresetControllerAbstract::IntensityMax() const
{
    return Intensity().Max();
}

int EffectPresetControllerAbstract::GetIntensity() const
{
    return Intensity().Value();
}

void EffectPresetControllerAbstract::SetIntensity(int value, bool /*live*/)
{
    Intensity().SetValue(value);
}

void EffectPresetControllerAbstract::SetIntensityFromEffectSettings(
    const Quindle::EffectsSettings& effects)
{
    Intensity().LoadValue(effects);
}

void EffectPresetControllerAbstract::IntensityChangeEnd() {}

IntensitySettingType EffectPresetControllerAbstract::GetIntensitySettingType() const
{
    return Intensity().GetType();
}

bool EffectPresetControllerAbstract::ApplySettingsOnProgress() const
{
    return true;
}

bool EffectPresetControllerAbstract::IsDownloadable() const
{
    return false;
}

void EffectPresetControllerAbstract::SetDownloadedResource(const std::string& /*resource*/) {}

std::vector<SliderSetting> EffectPresetControllerAbstract::GetSettings() const
{
    return m_settings;
}

bool EffectPresetControllerAbstract::SetSettingsValues(const std::vector<SliderSetting>& values)
{
    bool isChanged = false;
    const std::size_t count = std::min(m_settings.size(), values.size());
    for (std::size_t i = 0; i < count; ++i) {
        if (!isChanged)
            isChanged = m_settings[i].Value() != values[i].Value();
        m_settings[i].SetValue(values[i].Value());
    }
    return isChanged;
}

bool EffectPresetControllerAbstract::ResetSettingsValues()
{
    const bool isChanged = SetSettingsValues(GetSettingsDefault());
    Intensity().LoadValue(m_effectSettings);
    return isChanged;
}

std::vector<SliderSetting> EffectPresetControllerAbstract::GetSettingsDefault() const
{
    return m_defaultSettings;
}

unsigned int EffectPresetControllerAbstract::AddRef() const
{
    return m_refCount.AddRefImpl();
}

unsigned int EffectPresetControllerAbstract::Release() const
{
    const unsigned int count = m_refCount.ReleaseImpl();
    if (count == 0)
        delete this;
    return count;
}

unsigned int EffectPresetControllerAbstract::GetRefCount() const
{
    return m_refCount.GetRefCountImpl();
}

std::string EffectPresetControllerAbstract::GetStatisticEventNameClick() const
{
    return std::string();
}

std::string EffectPresetControllerAbstract::GetStatisticEventNameApply() const
{
    return std::string();
}

std::string EffectPresetControllerAbstract::GetStatisticEventNameReset() const
{
    return std::string();
}

std::string EffectPresetControllerAbstract::GetStatisticEventNameFavoriteAdd() const
{
    return std::string();
}

std::string EffectPresetControllerAbstract::GetStatisticEventNameFavoriteRemove() const
{
    return std::string();
}

std::map<std::string, std::string> EffectPresetControllerAbstract::GetStatisticParamList() const
{
    return {{Quindle::IStatisticsEventHandler::KEY_EFFECT_GROUP, m_group},
            {Quindle::IStatisticsEventHandler::KEY_EFFECT_NAME, m_name}};
}

void EffectPresetControllerAbstract::TrackEvent(const std::string& eventName) const
{
    if (eventName.empty())
        return;
    if (const auto workspace = GetWorkspaceController(false))
        workspace->GetStatisticsEventHandler().SendEvent(eventName, GetStatisticParamList());
}

/// A preset stored by the user has neither image, policies nor a preview list of its own, and its
/// effects stand in the preset's node itself; Deserialize() reads both shapes.
void EffectPresetControllerAbstract::Serialize(const Brassel::SerializerPtr& node) const
{
    node->Set(EffectInfo::KEY_NAME, m_name);
    node->Set(PresetKeys::ID, m_id);
    node->Set(PresetKeys::Popular, m_popular);
    const auto effects = GetEffectInfo(true);
    const auto items = node->CreateCollection(IEffectSettings::EFFECTS);
    for (const auto& effect : effects)
        items->AddElement()->WriteObject(IEffectSettings::EFFECT, *effect);
}

void EffectPresetControllerAbstract::Deserialize(const Brassel::ConstSerializerPtr& given)
{
    const auto node = NodeOrEmpty(given);
    m_name = node->Get(EffectInfo::KEY_NAME, "");
    m_id = node->Get(PresetKeys::ID, m_name);
    m_popular = node->Get(PresetKeys::Popular, false);
    m_image = node->Get(PresetKeys::Image, "");
    m_effectSettings = EffectsSettings(EffectsSettings::PhotoAlone);
    m_previewEffectSettings = EffectsSettings(EffectsSettings::PhotoAlone);
    m_previewCropPolicy = node->Get(PresetKeys::PreviewCropPolicy, IQuindleDrawer::CropToCentre);
    m_previewFitPolicy = node->Get(PresetKeys::PreviewFitPolicy, IQuindleDrawer::FitByScaling);
    m_color = ReadColor;

    const auto settings = node->GetNode(EffectInfo::TAG_SETTINGS);
    m_effectSettings = ReadEffects(settings ? *settings : *node);
    if (const auto preview = node->GetNode(EffectInfo::TAG_SETTINGS_PREVIEW))
        m_previewEffectSettings = ReadEffects(*preview);
    else
        m_previewEffectSettings.Effects() = m_effectSettings.Effects();
}

QImage EffectPresetControllerAbstract::GetImagePreviewInternal(const QSize& size,
                                                               unsigned int flags) const
{
    const auto workspace = GetWorkspaceController(false);
    if (!workspace)
        return QImage();
    Proc::FrameTarget target;
    target.width = size.width();
    target.height = size.height();
    target.pixelAspect = 1.0;
    const Proc::Frame frame = workspace->GetCoreDrawer().RenderPreview(
        target, m_previewEffectSettings, m_previewCropPolicy, m_previewFitPolicy, flags);
    return Util::ImageUtils::FrameToImage(frame, workspace->GetImageConverter());
}

} // namespace Zorvik::Lumetra::LumetraPresets
