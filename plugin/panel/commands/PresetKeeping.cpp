// SPDX-License-Identifier: GPL-2.0-or-later
// This part of the commands keeps presets on the disk.
#include "Settings/TuneSettingType.h"
#include "Zorvik/Exception.h"
#include "core/PresetCollection.h"
#include "core/TakenNames.h"
#include "core/userstore/UserPresetStore.h"
#include "panel/commands/HandedLook.h"
#include "panel/commands/PresetCommands.h"
#include "storage/ErrorText.h"

namespace LumetraPlugin {

using Zorvik::Lumetra::LumetraPresets::TuneSettingType;
using Zorvik::Quindle::EffectsSettings;

QString PresetCommands::Keep(const LumetraEditor::NewLook& look)
{
    try {
        const QString fault = HandedLook::FindFault(look, GetModel().GetUserPresetNames());
        if (!fault.isEmpty())
            return fault;
        if (!MayBeCalled(look.name.trimmed(), TakenNames::OfAll(GetModel())))
            return tr("Another look is called “%1”: choose another name.").arg(look.name.trimmed());
        const auto preset = HandedLook::MakePreset(look, m_presets.GetFactory());
        const QPersistentModelIndex added = GetModel().AddUserPreset(preset);
        const QString problem =
            TryToSaveOr([&] { GetModel().removeRows(added.row(), 1, added.parent()); });
        emit presetsChanged();
        if (problem.isEmpty())
            emit presetAdded(added);
        return problem;
    } catch (const std::exception& error) {
        return LumetraHost::ErrorText::Show(error);
    }
}

QString PresetCommands::FindUsersName(const QString& id) const
{
    const QModelIndex preset = m_presets.GetModel().FindId(id);
    return IsUsers(preset) ? preset.data(PresetModel::PresetNameRole).toString() : QString();
}

/// The step is that of the module that gives the effects: nothing is noted here. A look that could
/// not be saved goes back to what it was, since the module keeps its own layer then.
QString PresetCommands::Update(const QString& id, const Zorvik::Quindle::EffectsSettings& settings)
{
    try {
        const QModelIndex index = GetModel().FindId(id);
        const auto preset = GetModel().GetPreset(index);
        if (!preset || !IsUsers(index) || settings.Effects().empty())
            return tr("This look cannot be changed.");
        const auto putBack = preset->ReplaceEffects(settings.EffectsConst());
        const QString problem = TryToSaveOr(putBack);
        DrawAnew(index);
        emit lookChanged(index);
        emit valuesChanged();
        RememberEdit();
        return problem;
    } catch (const std::exception& error) {
        return LumetraHost::ErrorText::Show(error);
    }
}

void PresetCommands::DrawAnew(const QModelIndex& preset)
{
    if (preset.data(PresetModel::AppliedRole).toBool())
        GetModel().setData(preset, QVariant::fromValue(TuneSettingType::Apply),
                           PresetModel::TuneRole);
}

/// Saves; after a failure the next change tries again, and so does the end of the program.
void PresetCommands::Save()
{
    const QString problem = TryToSave();
    if (!problem.isEmpty())
        Tell(problem);
}

/// Saves a change that another module waits for, or takes it back: the module keeps what it has
/// then, and nothing is left to be saved at the end.
QString PresetCommands::TryToSaveOr(const std::function<void()>& takeBack)
{
    const bool hadUnsaved = m_hasUnsaved;
    const QString problem = TryToSave();
    if (problem.isEmpty())
        return {};
    takeBack();
    m_hasUnsaved = hadUnsaved;
    return problem;
}

/// Returns why the presets are not saved; empty when they are.
QString PresetCommands::TryToSave()
{
    m_hasUnsaved = true;
    if (!m_presets.GetStore())
        return tr("Your looks cannot be saved: their file could not be read.");
    try {
        for (const std::string& report : m_presets.GetStore()->Save(GetModel()))
            Tell(QString::fromStdString(report));
    } catch (const Zorvik::Exception& error) {
        return tr("Your looks could not be saved: %1").arg(QString::fromUtf8(error.what()));
    }
    m_hasUnsaved = false;
    return {};
}

bool PresetCommands::SaveOrAsk()
{
    while (m_hasUnsaved) {
        const QString problem = TryToSave();
        if (problem.isEmpty())
            break;
        const auto answer = m_dialogs.AskAboutUnsaved(problem, m_presets.GetStore() != nullptr);
        if (answer != PresetDialogs::Unsaved::SaveAgain)
            return answer == PresetDialogs::Unsaved::Lose;
    }
    return true;
}

} // namespace LumetraPlugin
