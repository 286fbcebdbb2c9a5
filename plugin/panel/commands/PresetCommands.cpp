// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/commands/PresetCommands.h"

#include "EffectPresets/IObjectsConnectorID.h"
#include "LumetraEditor/IEditor.h"
#include "Settings/TuneSettingType.h"
#include "Zorvik/Exception.h"
#include "Zorvik/Util/ObjectsConnector.h"
#include "core/PresetCollection.h"
#include "core/PresetResource.h"
#include "core/userstore/UserPresetStore.h"
#include "panel/appearance/EffectTexts.h"
#include "panel/commands/AppliedEdit.h"
#include "panel/commands/RecentPresets.h"
#include "panel/commands/RemoveCommand.h"
#include "storage/ErrorText.h"
#include "storage/JsonProperty.h"

#include <utility>

namespace LumetraPlugin {

using Zorvik::Lumetra::LumetraPresets::IObjectsConnectorID;
using Zorvik::Lumetra::LumetraPresets::SliderSetting;
using Zorvik::Lumetra::LumetraPresets::TuneSettingType;
using Zorvik::Util::ObjectsConnector;

namespace {

/// The name that the user reads.
QString NameOf(const QModelIndex& preset)
{
    return preset.data(PresetModel::ShownNameRole).toString();
}

} // namespace

PresetCommands::PresetCommands(PresetCollection& presets, AppliedEdit& edit, RecentPresets& recent,
                               LumetraEditor::IEditor& editor, QWidget& window)
    : m_presets(presets), m_edit(edit), m_recent(recent), m_editor(editor), m_guard(editor),
      m_dialogs(window), m_lastStep(std::make_shared<Zorvik::Core::Property>(std::string()))
{
}

PresetCommands::~PresetCommands() = default;

PresetModel& PresetCommands::GetModel()
{
    return m_presets.GetModel();
}

QModelIndex PresetCommands::GetApplied() const
{
    return m_presets.GetModel().FindApplied();
}

void PresetCommands::Try(const std::function<void()>& work)
{
    if (m_guard.Run(work))
        return;
    GoBack();
    emit appliedChanged();
    emit valuesChanged();
    emit presetsChanged();
}

/// Restores the photo after a failure. Where that fails too, as without a workspace, there is no
/// photo to go back to, and the user has been told already.
void PresetCommands::GoBack()
{
    try {
        if (LumetraHost::JsonProperty::AreEqual(*m_edit.Save(), *m_lastStep))
            return;
    } catch (...) { // what is applied cannot be drawn
    }
    try {
        m_edit.GoBackTo(m_lastStep);
    } catch (...) {
    }
}

void PresetCommands::Tell(const QString& text)
{
    m_editor.ShowMessage(text);
}

void PresetCommands::TellBriefly(const QString& text)
{
    m_editor.ShowBriefly(text);
}

void PresetCommands::SendPresetChanged()
{
    const QModelIndex applied = GetApplied();
    ObjectsConnector::sendMessage(IObjectsConnectorID::PRESET_CHANGED,
                                  {applied.data(PresetModel::PresetIdRole).toString(),
                                   applied.data(PresetModel::PresetNameRole).toString()});
}

/// Gets the effects of a preset that has none yet, and the tables that they need. Returns false,
/// after telling the user, when they are missing.
bool PresetCommands::Fetch(const QModelIndex& preset)
{
    if (!preset.data(PresetModel::DownloadableRole).toBool()) {
        const std::string problem =
            GetModel().GetPreset(preset)->FindProblem(LumetraHost::ContentCheck::Content);
        if (!problem.empty())
            Tell(
                tr("“%1” cannot be used: %2").arg(NameOf(preset), QString::fromStdString(problem)));
        return problem.empty();
    }
    const QString path = PresetResource::Find(GetModel(), preset, m_resourceFolders);
    if (path.isEmpty()) {
        Tell(tr("“%1” needs the file “%2”, expected in the folder “%3”.")
                 .arg(NameOf(preset), PresetResource::GetPlace(GetModel(), preset),
                      m_resourceFolders.value(0)));
        return false;
    }
    try {
        GetModel().setData(preset, path, PresetModel::DownloadedResourceRole);
    } catch (const std::exception& error) {
        Tell(LumetraHost::ErrorText::Show(error));
        return false;
    }
    emit lookChanged(preset);
    emit presetsChanged();
    return true;
}

void PresetCommands::Apply(const QModelIndex& preset, bool isFinished)
{
    Try([&] { ApplyOn(preset, isFinished); });
}

void PresetCommands::ApplyOn(const QModelIndex& preset, bool isFinished)
{
    if (m_editor.GetPhotoPath().isEmpty())
        return Tell(tr("Open a photo first."));
    if (!GetModel().GetPreset(preset) || !Fetch(preset))
        return;
    m_edit.ForgetStray();
    GetModel().setData(preset, true, PresetModel::AppliedRole);
    m_isStepping = !isFinished;
    if (isFinished)
        m_recent.Add(preset.data(PresetModel::PresetIdRole).toString());
    emit appliedChanged();
    SendPresetChanged();
    if (isFinished)
        FinishApplyStep();
}

void PresetCommands::ApplyId(const QString& id)
{
    const QModelIndex preset = GetModel().FindId(id);
    if (preset.isValid())
        Apply(preset);
    else
        Tell(tr("There is no look with the id “%1”.").arg(id));
}

void PresetCommands::SetIntensity(int value)
{
    Try([&] {
        const QModelIndex preset = GetApplied();
        GetModel().setData(preset, value, PresetModel::IntensityRole);
        GetModel().setData(preset, QVariant::fromValue(TuneSettingType::ChangeEnd),
                           PresetModel::TuneRole);
        emit valuesChanged();
        FinishIntensity();
    });
}

void PresetCommands::FinishIntensity()
{
    Try([this] {
        const QModelIndex preset = GetApplied();
        emit lookChanged(preset);
        FinishStep(tr("Intensity of “%1”").arg(NameOf(preset)));
    });
}

void PresetCommands::ResetIntensity()
{
    Try([&] {
        if (const auto preset = GetModel().GetPreset(GetApplied()))
            SetIntensity(preset->GetStartIntensity());
    });
}

void PresetCommands::SetSlider(int position, int value)
{
    Try([&] {
        const QModelIndex preset = GetApplied();
        auto sliders = preset.data(PresetModel::SettingsValuesRole).value<SliderSetting::List>();
        if (position < 0 || position >= static_cast<int>(sliders.size()))
            return;
        sliders[position].SetValue(value);
        GetModel().setData(preset, QVariant::fromValue(sliders), PresetModel::SettingsValuesRole);
    });
}

void PresetCommands::ResetSlider(int position)
{
    Try([&] {
        const QModelIndex preset = GetApplied();
        const auto defaults =
            preset.data(PresetModel::DefaultSettingsValuesRole).value<SliderSetting::List>();
        if (position < 0 || position >= static_cast<int>(defaults.size()))
            return;
        SetSlider(position, defaults[position].Value());
        emit lookChanged(preset);
        emit valuesChanged();
        FinishStep(tr("Reset “%1”").arg(EffectTexts::Translate(defaults[position].Title())));
    });
}

void PresetCommands::FinishSlider(int position)
{
    Try([&] {
        const QModelIndex preset = GetApplied();
        const auto sliders =
            preset.data(PresetModel::SettingsValuesRole).value<SliderSetting::List>();
        if (position < 0 || position >= static_cast<int>(sliders.size()))
            return;
        emit lookChanged(preset);
        FinishStep(EffectTexts::Translate(sliders[position].Title()));
    });
}

/// Lets the role put values back; it draws only where a slider had been moved. So an intensity that
/// moves effects is put back here, and the preset applied again.
void PresetCommands::Reset()
{
    Try([&] {
        const QModelIndex preset = GetApplied();
        if (!preset.isValid())
            return;
        GetModel().setData(preset, QVariant(), PresetModel::ResetRole);
        m_presets.PutIntensityBack(preset);
        GetModel().setData(preset, QVariant::fromValue(TuneSettingType::Apply),
                           PresetModel::TuneRole);
        emit lookChanged(preset);
        emit valuesChanged();
        FinishStep(tr("Reset “%1”").arg(NameOf(preset)));
    });
}

/// Switches the preset off silently: after the commit there is nothing left to take off.
void PresetCommands::Commit()
{
    Try([&] {
        const QModelIndex preset = GetApplied();
        if (!preset.isValid())
            return;
        const QString name = NameOf(preset);
        GetModel().ApplyCurrentChanges(true);
        GetModel().setData(preset, false, PresetModel::AppliedRole);
        TellCommitted();
        m_editor.NoteEdit(tr("Add another look to “%1”").arg(name));
    });
}

/// Takes the preset for applied no longer, silently: its package is part of the photo.
void PresetCommands::TakeForCommitted()
{
    Try([&] {
        m_edit.ForgetStray();
        if (const auto preset = GetModel().GetPreset(GetApplied()))
            preset->SetApplied(false, false);
        TellCommitted();
    });
}

void PresetCommands::TellCommitted()
{
    emit photoChanged();
    emit appliedChanged();
    SendPresetChanged();
    m_lastStep = m_edit.Save();
}

void PresetCommands::Discard()
{
    Try([this] { TakeOff(); });
}

void PresetCommands::TakeOff()
{
    m_edit.DropStray();
    m_presets.DiscardChanges();
    emit photoChanged();
    emit appliedChanged();
    SendPresetChanged();
    FinishStep(tr("Discard the look"));
}

void PresetCommands::FinishStep(const QString& text)
{
    Try([&] {
        const auto step = m_edit.Save();
        if (LumetraHost::JsonProperty::AreEqual(*step, *m_lastStep))
            return;
        m_lastStep = step;
        m_editor.NoteEdit(text);
    });
}

/// Notes the last look that a held arrow key has passed as used, and no other.
void PresetCommands::FinishApplyStep()
{
    if (std::exchange(m_isStepping, false)) {
        m_recent.Add(GetApplied().data(PresetModel::PresetIdRole).toString());
        emit presetsChanged(); // the look is among the recent ones
    }
    FinishStep(tr("Look “%1”").arg(NameOf(GetApplied())));
}

void PresetCommands::RememberEdit()
{
    m_lastStep = m_edit.Save();
    emit appliedChanged();
    SendPresetChanged();
}

void PresetCommands::SetFavourite(const QModelIndex& preset, bool isFavourite)
{
    Try([&] {
        if (!GetModel().GetPreset(preset))
            return;
        GetModel().setData(preset, isFavourite, PresetModel::FavouriteRole);
        Save();
        emit presetsChanged();
    });
}

bool PresetCommands::IsUsers(const QModelIndex& preset) const
{
    return preset.data(PresetModel::EditableRole).toBool();
}

void PresetCommands::Remove(const QModelIndex& preset)
{
    const auto removed = GetModel().GetPreset(preset);
    if (!removed || !IsUsers(preset))
        return;
    const QString name = NameOf(preset);
    if (!m_dialogs.AskRemoval(name))
        return;
    const int row = GetModel().FindPreset(*removed).row();
    m_editor.PushUndo(new RemoveCommand(*this, removed, row, tr("Delete “%1”").arg(name)));
}

/// Takes the preset's look off the photo too: nothing would be left to change it by.
void PresetCommands::TakeAway(const PresetModel::PresetPtr& preset)
{
    Try([&] {
        if (preset->IsApplied())
            TakeOff();
        const QModelIndex index = GetModel().FindPreset(*preset);
        if (!index.isValid())
            return;
        GetModel().removeRows(index.row(), 1, index.parent());
        Save();
        emit presetsChanged();
    });
}

void PresetCommands::PutBack(const PresetModel::PresetPtr& preset, int row)
{
    Try([&] {
        GetModel().InsertPreset(row, GetModel().GetUserGroup(), preset);
        Save();
        emit presetsChanged();
    });
}

} // namespace LumetraPlugin
