// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/PresetController.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Lumetra/IWorkspaceController.h"
#include "Zorvik/Util/ImageUtils.h"
#include "core/PresetResource.h"

#include <QImage>

#include <algorithm>

namespace LumetraPlugin {
namespace {

using Zorvik::Lumetra::LumetraPresets::SliderSetting;
using Zorvik::Quindle::EffectsSettings;
using Zorvik::Quindle::IEffectSettings;

constexpr unsigned DraftFlag = 1;

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
    return copy;
}

void PresetController::Deserialize(const Zorvik::Brassel::ConstSerializerPtr& node)
{
    EffectPresetControllerBase::Deserialize(node);
    m_resource = node->Get(PresetResource::KEY, "");
    m_hasResource = false;
}

void PresetController::InitDefaultSettings(const SliderSetting::List& sliders)
{
    if (IsDownloadable())
        m_laterSliders = sliders;
    else
        EffectPresetControllerBase::InitDefaultSettings(sliders);
}

bool PresetController::IsDownloadable() const
{
    return !m_resource.empty() && !m_hasResource;
}

void PresetController::SetDownloadedResource(const std::string& resource)
{
    if (!IsDownloadable())
        return;
    m_effectSettings = PresetResource::Read(QString::fromStdString(resource));
    m_previewEffectSettings.SetEffectsConst(m_effectSettings.EffectsConst());
    m_hasResource = true;
    InitDefaultSettings(m_laterSliders);
    InitIntensity(m_laterIntensity);
}

void PresetController::InitIntensity(const Zorvik::Brassel::ConstSerializerPtr& node)
{
    if (IsDownloadable()) {
        m_laterIntensity = node;
        return;
    }
    EffectPresetControllerBase::InitIntensity(node);
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

EffectsSettings PresetController::MakeSettings()
{
    EffectsSettings shared(1);
    shared.SetEffectsConst(GetEffectInfo(false));
    EffectsSettings settings(shared); // a copy of the effects, before the intensity goes into them
    settings.Package().SetPackageName(m_packageName);
    settings.Package().SetPresetName(m_id);
    Intensity().SaveValue(settings);
    return settings;
}

EffectsSettings PresetController::MakePreviewSettings()
{
    // Moved sliders reach a preview list that is the preset's own.
    static_cast<void>(GetEffectInfo(false));
    BringIntensityIntoPreview();
    return m_previewEffectSettings;
}

PreviewPolicies PresetController::GetPreviewPolicies() const
{
    return {m_previewCropPolicy, m_previewFitPolicy, m_previews->isDraft ? DraftFlag : 0};
}

std::string PresetController::GetPreviewKey() const
{
    return m_group + '\n' + m_id;
}

bool PresetController::ApplySettingsOnProgress() const
{
    return true;
}

/// A slider intensity can only be shown on a preview list that has all of its effects.
void PresetController::BringIntensityIntoPreview()
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
    const PreviewPolicies policies = GetPreviewPolicies();
    if (!m_previews->render) {
        BringIntensityIntoPreview();
        return GetImagePreviewInternal(m_previews->size, policies.flags);
    }
    const Zorvik::Proc::FrameTarget target{m_previews->size.width(), m_previews->size.height(),
                                           1.0};
    const auto frame = m_previews->render(GetPreviewKey(), target, MakePreviewSettings(), policies);
    return Zorvik::Util::ImageUtils::FrameToImage(frame, workspace->GetImageConverter());
}

std::string PresetController::GetStatisticEventNameClick() const
{
    return EVENT_CLICK;
}

std::string PresetController::GetStatisticEventNameApply() const
{
    return EVENT_APPLY;
}

std::string PresetController::GetStatisticEventNameReset() const
{
    return EVENT_RESET;
}

std::string PresetController::GetStatisticEventNameFavoriteAdd() const
{
    return EVENT_FAVOURITE_ADD;
}

std::string PresetController::GetStatisticEventNameFavoriteRemove() const
{
    return EVENT_FAVOURITE_REMOVE;
}

} // namespace LumetraPlugin
