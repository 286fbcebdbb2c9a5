// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/PresetController.h"

#include "Settings/IntensitySettingsFactory.h"
#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Exception.h"
#include "Zorvik/Lumetra/IWorkspaceController.h"
#include "Zorvik/Quindle/IQuindleDrawer.h"
#include "Zorvik/Util/ImageUtils.h"
#include "catalogue/CatalogueKeys.h"
#include "core/PresetResource.h"
#include "storage/ErrorText.h"

#include <QImage>

#include <boost/current_function.hpp>

#include <algorithm>
#include <utility>

namespace LumetraPlugin {
namespace {

using Zorvik::Brassel::ISerializable;
using Zorvik::Lumetra::LumetraPresets::IntensitySettingsFactory;
using Zorvik::Lumetra::LumetraPresets::SliderSetting;
using Zorvik::Quindle::EffectsSettings;
using Zorvik::Quindle::IEffectSettings;
using Keys = LumetraHost::CatalogueKeys;

LookCredits ReadCredits(const Zorvik::Brassel::ConstSerializerPtr& node)
{
    LookCredits credits;
    credits.author = node->Get(Keys::Author, "");
    credits.licence = node->Get(Keys::Licence, "");
    const auto names = LumetraHost::LocalNames::Read(node);
    for (const auto& [language, name] : names.GetAll())
        credits.names[language.toStdString()] = name.toStdString();
    return credits;
}

void WriteCredits(const LookCredits& credits, Zorvik::Brassel::ISerializer& node)
{
    if (!credits.author.empty())
        node.Set(Keys::Author, credits.author);
    if (!credits.licence.empty())
        node.Set(Keys::Licence, credits.licence);
    if (credits.names.empty())
        return;
    const auto names = node.CreateNode(Keys::Names);
    for (const auto& [language, name] : credits.names)
        names->Set(language, name);
}

/// Reads the preset's own sliders; nothing when it lists none. Throws what a slider throws that
/// moves an unknown parameter.
std::optional<SliderSetting::List> ReadSliders(const Zorvik::Brassel::ISerializer& node)
{
    const auto list = node.GetCollection(LumetraHost::CatalogueKeys::Sliders);
    if (!list)
        return std::nullopt;
    SliderSetting::List sliders;
    for (std::size_t i = 0; i < list->GetCount(); ++i) {
        SliderSetting slider(false);
        list->ReadObject(i, slider.GetClassId(), slider);
        sliders.push_back(std::move(slider));
    }
    return sliders;
}

} // namespace

PresetController::PresetController(const std::string& packageName,
                                   const std::shared_ptr<const PreviewOptions>& previews)
    : EffectPresetControllerBase(packageName), m_previews(previews)
{
}

PresetController::PresetController(const PresetController&) = default;
PresetController::~PresetController() = default;

boost::intrusive_ptr<PresetController> PresetController::Copy() const
{
    const boost::intrusive_ptr<PresetController> copy = new PresetController(*this);
    copy->m_startIntensity = GetIntensity();
    copy->m_localNames = {};
    copy->MoveEffectsTo(GetIntensity());
    return copy;
}

/// Moves the effects to where the intensity stands. Those that a drag has moved stay there when an
/// undo puts the intensity back. Effects that are there already keep their exact values.
void PresetController::MoveEffectsTo(int intensity)
{
    Intensity().LoadValue(m_effectSettings);
    if (GetIntensity() == intensity)
        return;
    Intensity().SetValue(intensity);
    Intensity().SaveValue(m_effectSettings);
}

boost::intrusive_ptr<PresetController> PresetController::CopyAtStart() const
{
    const boost::intrusive_ptr<PresetController> copy = Copy();
    copy->m_settings = m_defaultSettings;
    copy->m_defaultSettings = m_defaultSettings;
    copy->m_startIntensity = m_startIntensity;
    copy->PutIntensityBack();
    return copy;
}

LookCredits PresetController::MakeCredits() const
{
    LookCredits credits = m_credits;
    for (const auto& [language, name] : GetLocalNames().GetAll())
        credits.names[language.toStdString()] = name.toStdString();
    return credits;
}

void PresetController::SetName(const std::string& name)
{
    if (name != GetName())
        m_credits.names.clear();
    EffectPresetControllerBase::SetName(name);
}

void PresetController::Deserialize(const Zorvik::Brassel::ConstSerializerPtr& node)
{
    EffectPresetControllerBase::Deserialize(node);
    m_resource = node->Get(Keys::Resource, "");
    m_credits = ReadCredits(node);
    m_hasResource = false;
    m_localNames = LumetraHost::LocalNames::Read(node);
    m_ownSliders = ReadSliders(*node);
}

/// Presets without credits and sliders of their own are written as they always were.
void PresetController::Serialize(const Zorvik::Brassel::SerializerPtr& node) const
{
    EffectPresetControllerBase::Serialize(node);
    WriteCredits(m_credits, *node);
    if (!m_ownSliders)
        return;
    const auto list = node->CreateCollection(Keys::Sliders);
    for (const SliderSetting& slider : *m_ownSliders)
        static_cast<const ISerializable&>(slider).Serialize(list->AddElement());
}

const LumetraHost::LocalNames& PresetController::GetLocalNames() const
{
    static const LumetraHost::LocalNames none;
    return m_groupEditable ? none : m_localNames;
}

QString PresetController::GetShownName() const
{
    const QString name = GetLocalNames().Find();
    return name.isEmpty() ? QString::fromStdString(GetName()) : name;
}

void PresetController::InitDefaultSettings(const SliderSetting::List& sliders)
{
    if (IsDownloadable())
        m_laterSliders = sliders;
    else
        EffectPresetControllerBase::InitDefaultSettings(m_ownSliders.value_or(sliders));
}

std::function<void()>
PresetController::ReplaceEffects(const Zorvik::Quindle::ConstEffectList& effects)
{
    EffectsSettings replaced(EffectsSettings::PhotoAlone);
    for (const auto& effect : effects)
        replaced.Effects().push_back(effect->Clone());
    if (const auto* slider = dynamic_cast<const SliderSetting*>(&Intensity()))
        CheckIntensityEffects(*slider, replaced);
    auto putBack = MakePutBack();
    m_effectSettings = std::move(replaced);
    m_previewEffectSettings.SetEffectsConst(m_effectSettings.EffectsConst());
    const SliderSetting::List sliders = std::exchange(m_defaultSettings, {});
    EffectPresetControllerBase::InitDefaultSettings(sliders);
    m_effectSettings.SetBlendAmount(EffectsSettings::FullEffect);
    Intensity().LoadValue(m_effectSettings);
    m_startIntensity = GetIntensity();
    return putBack;
}

std::function<void()> PresetController::MakePutBack()
{
    return [this, effects = m_effectSettings, previewEffects = m_previewEffectSettings,
            sliders = m_settings, defaults = m_defaultSettings, start = m_startIntensity,
            intensity = GetIntensity()] {
        m_effectSettings = effects;
        m_previewEffectSettings = previewEffects;
        m_settings = sliders;
        m_defaultSettings = defaults;
        m_startIntensity = start;
        SetIntensity(intensity, false);
    };
}

void PresetController::SetDownloadedResource(const std::string& resource)
{
    if (!IsDownloadable())
        return;
    const EffectsSettings before = m_effectSettings;
    const EffectsSettings previewBefore = m_previewEffectSettings;
    m_effectSettings = PresetResource::Read(QString::fromStdString(resource));
    m_previewEffectSettings.SetEffectsConst(m_effectSettings.EffectsConst());
    m_hasResource = true;
    try {
        InitDefaultSettings(m_laterSliders);
        InitIntensity(m_laterIntensity);
    } catch (const std::exception& error) {
        m_effectSettings = before;
        m_previewEffectSettings = previewBefore;
        m_hasResource = false;
        m_intensitySetting.reset();
        m_settings.clear();
        m_defaultSettings.clear();
        throw Zorvik::Exception(resource + ": " + LumetraHost::ErrorText::FirstLine(error),
                                BOOST_CURRENT_FUNCTION, "core/PresetController", __LINE__);
    }
}

void PresetController::InitIntensity(const Zorvik::Brassel::ConstSerializerPtr& node)
{
    if (IsDownloadable()) {
        m_laterIntensity = node;
        return;
    }
    const auto intensity = IntensitySettingsFactory().Create(node);
    if (const auto* slider = dynamic_cast<const SliderSetting*>(intensity.get()))
        CheckIntensityEffects(*slider, m_effectSettings);
    EffectPresetControllerBase::InitIntensity(node);
    LimitIntensity();
    m_startIntensity = GetIntensity();
}

std::string PresetController::FindProblem(LumetraHost::ContentCheck check) const
{
    for (const EffectsSettings* settings : {&m_effectSettings, &m_previewEffectSettings})
        for (const auto& effect : settings->EffectsConst()) {
            const auto* elsewhere =
                dynamic_cast<const LumetraHost::IStoredElsewhere*>(effect.get());
            const std::string problem = elsewhere ? elsewhere->FindProblem(check) : std::string();
            if (!problem.empty())
                return problem;
        }
    return {};
}

/// Looks for all effects of the intensity: the library looks for the first one only, and would miss
/// the others when the preset is applied.
void PresetController::CheckIntensityEffects(const SliderSetting& slider,
                                             const EffectsSettings& settings)
{
    for (const std::string& effectID : slider.GetEffectIDs())
        if (!IEffectSettings::Find(settings.Effects(), effectID))
            throw Zorvik::Exception("expected the effect \"" + effectID +
                                        "\", which the intensity slider drives, found none in the "
                                        "preset",
                                    BOOST_CURRENT_FUNCTION, "core/PresetController", __LINE__);
}

/// Moves a stored intensity into its range; the library takes it as it stands.
void PresetController::LimitIntensity()
{
    const auto [lowest, highest] = std::minmax({IntensityMin(), IntensityMax()});
    const int limited = std::clamp(GetIntensity(), lowest, highest);
    m_intensityRemark.clear();
    if (limited == GetIntensity())
        return;
    m_intensityRemark = "expected an intensity from " + std::to_string(lowest) + " to " +
                        std::to_string(highest) + ", found " + std::to_string(GetIntensity()) +
                        ": it starts at " + std::to_string(limited);
    Intensity().SetValue(limited);
    Intensity().SaveValue(m_effectSettings);
}

void PresetController::PutIntensityBack()
{
    Intensity().SetValue(m_startIntensity);
    Intensity().SaveValue(m_effectSettings);
}

EffectsSettings PresetController::MakeSettings()
{
    EffectsSettings shared(EffectsSettings::PhotoAlone);
    shared.SetEffectsConst(GetEffectInfo(false));
    EffectsSettings settings(shared); // a copy of the effects, before the intensity goes into them
    settings.Package().SetPackageName(m_packageName);
    settings.Package().SetPresetName(m_id);
    Intensity().SaveValue(settings);
    return settings;
}

EffectsSettings PresetController::MakePreviewSettings()
{
    // This call copies moved sliders into a preview list that is the preset's own.
    static_cast<void>(GetEffectInfo(false));
    WriteIntensityToPreview();
    return m_previewEffectSettings;
}

LumetraHost::PreviewPolicies PresetController::GetPreviewPolicies() const
{
    return {m_previewCropPolicy, m_previewFitPolicy,
            m_previews->isDraft ? Zorvik::Quindle::IQuindleDrawer::FlagDraft : 0};
}

std::string PresetController::GetPreviewKey() const
{
    return m_group + '\n' + m_id;
}

/// Writes the intensity into the preview list, if that has all effects that a slider intensity
/// moves.
void PresetController::WriteIntensityToPreview()
{
    const auto* slider = dynamic_cast<const SliderSetting*>(&Intensity());
    const auto effectIDs = slider ? slider->GetEffectIDs() : std::set<std::string>();
    const auto& effects = m_previewEffectSettings.Effects();
    const bool fits = std::all_of(effectIDs.begin(), effectIDs.end(), [&](const auto& effectID) {
        return IEffectSettings::Find(effects, effectID) != nullptr;
    });
    if (fits)
        Intensity().SaveValue(m_previewEffectSettings);
}

QImage PresetController::GetPreviewImage()
{
    const auto workspace = GetWorkspaceController(false);
    if (!workspace || !FindProblem(LumetraHost::ContentCheck::Presence).empty())
        return QImage();
    const LumetraHost::PreviewPolicies policies = GetPreviewPolicies();
    if (!m_previews->render) {
        WriteIntensityToPreview();
        return GetImagePreviewInternal(m_previews->size, policies.flags);
    }
    const Zorvik::Proc::FrameTarget target{m_previews->size.width(), m_previews->size.height(),
                                           1.0};
    const auto frame = m_previews->render(GetPreviewKey(), target, MakePreviewSettings(), policies);
    return Zorvik::Util::ImageUtils::FrameToImage(frame, workspace->GetImageConverter());
}

std::string PresetController::GetStatisticEventNameClick() const
{
    return EventClick;
}

std::string PresetController::GetStatisticEventNameApply() const
{
    return EventApply;
}

std::string PresetController::GetStatisticEventNameReset() const
{
    return EventReset;
}

std::string PresetController::GetStatisticEventNameFavoriteAdd() const
{
    return EventFavouriteAdd;
}

std::string PresetController::GetStatisticEventNameFavoriteRemove() const
{
    return EventFavouriteRemove;
}

} // namespace LumetraPlugin
