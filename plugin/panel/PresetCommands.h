// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/PresetModel.h"
#include "panel/PanelGuard.h"
#include "panel/PresetDialogs.h"

#include <QJsonObject>
#include <QObject>

namespace LumetraEditor {
class IEditor;
}

namespace LumetraPlugin {

class AppliedEdit;
class PresetCollection;
class RecentPresets;

/// What the user can do to presets: each through the model's roles, with what belongs to it - the
/// user's file is saved, the editor keeps the finished step, the panel's views are told. Indexes
/// are those of the preset model; invalid ones do nothing. No command throws: one that fails tells
/// the user why, the photo is as after the last finished step, and the views read everything again.
class PresetCommands : public QObject
{
    Q_OBJECT

public:
    /// All are kept by reference. `window` is the parent of dialogs.
    PresetCommands(PresetCollection& presets, AppliedEdit& edit, RecentPresets& recent,
                   LumetraEditor::IEditor& editor, QWidget& window);
    ~PresetCommands() override;

    /// Where the resources of presets are looked for.
    void SetResourceFolders(const QStringList& folders) { m_resourceFolders = folders; }

    PresetModel& GetModel();
    /// The preset that is on the photo; invalid when there is none.
    QModelIndex GetApplied() const;

    // On the photo.
    /// Puts the preset on the photo. `isFinished` false: more of the same follows, as while an
    /// arrow key is held; then FinishStep().
    void Apply(const QModelIndex& preset, bool isFinished = true);
    void ApplyId(const QString& id);
    void SetIntensity(int value);
    void ResetIntensity();
    void SetSlider(int position, int value);
    void ResetSlider(int position);
    /// The user has let go of the control that has set the intensity, or a slider, in the model.
    void FinishIntensity();
    void FinishSlider(int position);
    /// All values of the applied preset back to where they started.
    void Reset();
    /// Makes the look part of the photo, so that the next one comes on top.
    void Commit();
    /// Takes the look off and forgets all changed values.
    void Discard();
    /// The editor keeps what has changed since the last step, if anything has.
    void FinishStep(const QString& text);
    /// The same, named after the applied preset.
    void FinishApplyStep();
    /// What is on the photo has been changed by the editor: the step there begins here.
    void RememberEdit();

    // Of the presets themselves.
    void SetFavourite(const QModelIndex& preset, bool isFavourite);
    void SaveAs(const QModelIndex& preset);
    void Rename(const QModelIndex& preset);
    /// Asks first; only for the user's own. Undoable.
    void Remove(const QModelIndex& preset);
    bool IsUsers(const QModelIndex& preset) const;
    /// Files with looks, see PresetImport.
    void Import(const QStringList& paths);
    void ImportByDialog();
    /// Writes the look at its current values as a .cube file that the user names.
    void Export(const QModelIndex& preset);

    /// Saves what could not be saved so far, and asks where that fails again. False when the user
    /// wants to see to it.
    bool SaveOrAsk();

    // For the commands that undo.
    void TakeAway(const PresetModel::PresetPtr& preset);
    void PutBack(const PresetModel::PresetPtr& preset, int row);

signals:
    /// Another preset is on the photo, or none.
    void appliedChanged();
    /// Values of the applied preset have been set otherwise than by its own sliders.
    void valuesChanged();
    /// The preset's picture is no longer right.
    void lookChanged(const QModelIndex& preset);
    /// The photo under the looks is another one: so are all pictures.
    void photoChanged();
    /// Names, or which presets there are.
    void presetsChanged();
    /// The user has got a new one.
    void presetAdded(const QModelIndex& preset);

private:
    void Try(const std::function<void()>& work);
    void GoBack();
    void ApplyOn(const QModelIndex& preset, bool isFinished);
    void TakeOff();
    void ExportLook(const QModelIndex& preset);
    void Save();
    QString TryToSave();
    void Tell(const QString& text);
    void SendPresetChanged();
    bool Fetch(const QModelIndex& preset);

    PresetCollection& m_presets;
    AppliedEdit& m_edit;
    RecentPresets& m_recent;
    LumetraEditor::IEditor& m_editor;
    PanelGuard m_guard;
    PresetDialogs m_dialogs;
    QStringList m_resourceFolders;
    QJsonObject m_lastStep;
    bool m_hasUnsaved = false;
};

} // namespace LumetraPlugin
