// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/commands/AppliedEdit.h"

#include "LumetraEditor/IEditorPlugin.h"
#include "Zorvik/Brassel/ISerializerCollection.h"
#include "Zorvik/Brassel/SerializerProperty.h"
#include "Zorvik/Exception.h"
#include "Zorvik/Lumetra/IWorkspaceController.h"
#include "Zorvik/Quindle/IQuindleDrawer.h"
#include "Zorvik/Quindle/ResetSettings.h"
#include "core/PresetCollection.h"
#include "storage/ErrorText.h"

#include <algorithm>
#include <utility>

namespace LumetraPlugin {
namespace {

using LumetraEditor::IEditorPanel;
using Zorvik::Brassel::ISerializer;
using Zorvik::Brassel::SerializerProperty;
using Zorvik::Core::Property;
using Zorvik::Lumetra::LumetraPresets::IntensitySettingType;
using Zorvik::Lumetra::LumetraPresets::SliderSetting;
using Zorvik::Quindle::EffectsSettings;
using Zorvik::Quindle::IEffectSettings;

constexpr unsigned NoIndex = Zorvik::Quindle::EffectsSettingsPackage::NoIndex;
constexpr char BlendKey[] = "blend", SlidersKey[] = "sliders", PositionKey[] = "value";
constexpr char Place[] = "edit"; // begins the paths in messages

/// Runs `read`; a wrong entry costs only itself.
template <class Read>
void Try(QStringList& reports, const Read& read)
{
    try {
        read();
    } catch (const Zorvik::Exception& error) {
        reports.append(LumetraHost::ErrorText::Show(error));
    }
}

/// Writes the effects as the catalogue has them, through their own stored form.
void SaveEffects(const EffectsSettings& settings, ISerializer& edit)
{
    const auto list = edit.CreateCollection(IEffectSettings::EFFECTS);
    for (const auto& effect : settings.EffectsConst())
        list->AddElement()->WriteObject(IEffectSettings::EFFECT, *effect);
}

/// Reads the effects that can be read, and reports each other one.
void LoadEffects(const ISerializer& edit, EffectsSettings& settings, QStringList& reports)
{
    const auto list = edit.GetCollection(IEffectSettings::EFFECTS);
    for (std::size_t i = 0; list && i < list->GetCount(); ++i)
        Try(reports, [&] {
            const auto element = list->GetElement(i);
            const auto effect =
                IEffectSettings::CreateEffectSettings(element->GetNode(IEffectSettings::EFFECT));
            element->ReadObject(IEffectSettings::EFFECT, *effect);
            settings.Effects().push_back(effect);
        });
}

void SavePositions(const QModelIndex& preset, ISerializer& edit)
{
    const auto list = edit.CreateCollection(SlidersKey);
    const auto sliders = preset.data(PresetModel::SettingsValuesRole).value<SliderSetting::List>();
    for (const SliderSetting& slider : sliders)
        list->AddElement()->Set(PositionKey, slider.Value());
}

bool HasIntensity(const QModelIndex& preset)
{
    return preset.data(PresetModel::IntensitySettingTypeRole).value<IntensitySettingType>() !=
           IntensitySettingType::None;
}

} // namespace

AppliedEdit::AppliedEdit(PresetCollection& presets,
                         std::shared_ptr<Zorvik::Lumetra::IWorkspaceController> workspace)
    : m_presets(presets), m_workspace(std::move(workspace))
{
}

Property::Ptr AppliedEdit::Save() const
{
    if (m_stray)
        return m_stray->edit;
    const auto edit = std::make_shared<Property>(std::string());
    const QModelIndex applied = m_presets.GetModel().FindApplied();
    if (!applied.isValid())
        return edit;
    const auto text = [&applied](int role) { return applied.data(role).toString().toStdString(); };
    const EffectsSettings settings = m_presets.GetModel().GetPreset(applied)->MakeSettings();
    const auto root = SerializerProperty::Create(edit, Place);
    root->Set(IEditorPanel::EditPreset, text(PresetModel::PresetIdRole));
    root->Set(IEditorPanel::EditName, text(PresetModel::PresetNameRole));
    if (HasIntensity(applied))
        root->Set(IEditorPanel::EditIntensity, applied.data(PresetModel::IntensityRole).toInt());
    root->Set(BlendKey, settings.GetBlendAmount());
    SaveEffects(settings, *root);
    SavePositions(applied, *root);
    return edit;
}

/// Reads the package as it was saved, whatever the catalogue says today.
EffectsSettings AppliedEdit::Load(const ISerializer& edit, QStringList& reports) const
{
    EffectsSettings settings(EffectsSettings::PhotoAlone);
    Try(reports, [&] { LoadEffects(edit, settings, reports); });
    Try(reports, [&] {
        const int blend = edit.Get(BlendKey, EffectsSettings::FullEffect);
        settings.SetBlendAmount(
            std::clamp(blend, EffectsSettings::FullEffect, EffectsSettings::NoEffect));
    });
    return settings;
}

void AppliedEdit::Draw(const std::string& id, EffectsSettings& settings)
{
    settings.Package().SetPackageName(m_presets.GetPackageName());
    settings.Package().SetPresetName(id);
    m_workspace->GetCoreDrawer().ApplyEffect(settings, {});
}

QStringList AppliedEdit::Restore(const Property::Ptr& edit)
{
    QStringList reports;
    m_stray.reset();
    PresetModel& model = m_presets.GetModel();
    model.SetResetIndex(NoIndex);
    const auto root = SerializerProperty::Create(edit, Place);
    std::string id;
    Try(reports, [&] { id = root->Get(IEditorPanel::EditPreset, ""); });
    if (id.empty()) {
        if (!root->GetKeys().empty())
            reports.append(tr("The edit names no look; none is put on the photo."));
        model.ActivatePreset(std::string(), EffectsSettings(EffectsSettings::PhotoAlone));
        return reports;
    }
    EffectsSettings settings = Load(*root, reports);
    const EffectsSettings values = settings;
    Draw(id, settings);
    const QModelIndex preset = model.FindId(QString::fromStdString(id));
    const std::string problem =
        preset.isValid() ? model.GetPreset(preset)->FindProblem(LumetraHost::ContentCheck::Content)
                         : std::string();
    if (preset.isValid() && problem.empty()) {
        RestoreValues(id, values, reports);
        return reports;
    }
    model.ActivatePreset(preset.isValid() ? std::string() : id, settings);
    std::string name = id;
    Try(reports, [&] { name = root->Get(IEditorPanel::EditName, id); });
    m_stray = Stray{preset.isValid() ? preset.data(PresetModel::ShownNameRole).toString()
                                     : QString::fromStdString(name),
                    edit};
    reports.append(DescribeStray(problem));
    return reports;
}

/// `problem` is empty when no catalogue has the preset.
QString AppliedEdit::DescribeStray(const std::string& problem) const
{
    return problem.empty()
               ? tr("The look “%1” is no longer there. The photo keeps it as it was.")
                     .arg(m_stray->name)
               : tr("The look “%1” cannot be changed: %2. The photo keeps it as it was.")
                     .arg(m_stray->name, QString::fromStdString(problem));
}

/// Brings the panel's controls to where they were; the photo is drawn already.
void AppliedEdit::RestoreValues(const std::string& id, const EffectsSettings& values,
                                QStringList& reports)
{
    try {
        m_presets.GetModel().ActivatePreset(id, values);
    } catch (const std::exception& error) {
        // An intensity that must find its effect, and does not.
        reports.append(LumetraHost::ErrorText::Show(error));
    }
}

void AppliedEdit::DropStray()
{
    if (!m_stray)
        return;
    m_stray.reset();
    ResetPackage();
}

void AppliedEdit::ResetPackage()
{
    const unsigned index = m_workspace->GetCoreDrawer().GetPackageIndex(m_presets.GetPackageName());
    if (index != NoIndex)
        m_workspace->GetResetReceiver().ResetPackage(Zorvik::Quindle::ResetSettings(index));
}

/// A preset that failed while it was applied says that it is, though nothing of it was drawn.
void AppliedEdit::GoBackTo(const Property::Ptr& edit)
{
    if (const auto applied = m_presets.GetModel().GetPreset(m_presets.GetModel().FindApplied()))
        applied->SetApplied(false, false);
    ResetPackage();
    Restore(edit);
}

} // namespace LumetraPlugin
