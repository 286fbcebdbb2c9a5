// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Core/Property.h"
#include "core/PresetModel.h"
#include "panel/commands/PanelGuard.h"
#include "panel/commands/PresetDialogs.h"

#include <QObject>
#include <QTemporaryDir>

#include <memory>
#include <optional>
#include <vector>

class QMimeData;

namespace LumetraEditor {
class IEditor;
struct NewLook;
} // namespace LumetraEditor

namespace LumetraPlugin {

class AppliedEdit;
class PresetCollection;
class RecentPresets;
class ShareDialog;
class TakenNames;
struct ImportReport;

/// The user's operations on presets. Each works through the model's roles, saves the user's file,
/// gives the editor the finished step and tells the panel's views. Indexes are those of the preset
/// model; invalid ones do nothing. No command throws: one that fails tells the user why, the photo
/// is as after the last finished step, and the views read everything again.
class PresetCommands : public QObject
{
    Q_OBJECT

public:
    /// All are kept by reference. `window` is the parent of dialogs.
    PresetCommands(PresetCollection& presets, AppliedEdit& edit, RecentPresets& recent,
                   LumetraEditor::IEditor& editor, QWidget& window);
    ~PresetCommands() override;

    /// Sets the folders in which resources of presets are looked for.
    void SetResourceFolders(const QStringList& folders) { m_resourceFolders = folders; }
    /// Sets the ini file in which dialogs keep what they propose again; empty: they keep nothing.
    void SetSettingsFile(const QString& path) { m_settingsFile = path; }

    PresetModel& GetModel();
    /// The preset that is on the photo; invalid when there is none.
    QModelIndex GetApplied() const;

    // Operations on the photo.
    /// Puts the preset on the photo. `isFinished` false: further calls follow, as while an arrow
    /// key is held, and then FinishStep().
    void Apply(const QModelIndex& preset, bool isFinished = true);
    void ApplyId(const QString& id);
    void SetIntensity(int value);
    void ResetIntensity();
    void SetSlider(int position, int value);
    void ResetSlider(int position);
    /// Ends a step in which the user's control has set the intensity, or a slider, in the model.
    void FinishIntensity();
    void FinishSlider(int position);
    /// Puts all values of the applied preset back to where they started.
    void Reset();
    /// Makes the look part of the photo, so that the next one comes on top.
    void Commit();
    /// Does what follows a commit, after another module has committed the look.
    void TakeForCommitted();
    /// Takes the look off and forgets all changed values.
    void Discard();
    /// Gives the editor a step with the changes since the last one, if there are any.
    void FinishStep(const QString& text);
    /// Finishes a step that is named after the applied preset.
    void FinishApplyStep();
    /// Begins the next step at the present state, which the editor has made.
    void RememberEdit();

    // Operations on presets themselves.
    void SetFavourite(const QModelIndex& preset, bool isFavourite);
    void SaveAs(const QModelIndex& preset);
    /// Keeps a look of another module among the user's presets and saves. Returns a sentence that
    /// says why not; the presets are as they were then.
    QString Keep(const LumetraEditor::NewLook& look);
    /// The name of the user's preset with that id; empty when there is none.
    QString FindUsersName(const QString& id) const;
    /// Gives a preset of the user other effects and saves, see ILookKeeper::UpdateLook(). Returns a
    /// sentence as Keep() does.
    QString Update(const QString& id, const Zorvik::Quindle::EffectsSettings& settings);
    void Rename(const QModelIndex& preset);
    /// Removes a preset of the user's own, after asking. Undoable.
    void Remove(const QModelIndex& preset);
    bool IsUsers(const QModelIndex& preset) const;
    /// Imports files with looks, and folders of them, see PresetImport. Tells what came, and what
    /// did not and why.
    void Import(const QStringList& paths);
    void ImportByDialog();
    void ImportFolderByDialog();
    /// Writes the look at its current values as a table of colours for other programs, to a file
    /// that the user names. Asks whether effects that fit into none are left out.
    void Export(const QModelIndex& preset);

    /// Writes looks that the user chooses, this one first, as a file for other people.
    void Share(const QModelIndex& preset);
    /// The look as a file that can be dragged to another program; null, after telling the user,
    /// when it cannot be written. The file lives as long as the commands.
    std::unique_ptr<QMimeData> MakeDragData(const QModelIndex& preset);

    /// Saves changes that could not be saved so far, and asks the user where that fails again.
    /// False when the user wants to see to it before the program ends.
    bool SaveOrAsk();

    // Operations for the commands that undo.
    void TakeAway(const PresetModel::PresetPtr& preset);
    void PutBack(const PresetModel::PresetPtr& preset, int row);

signals:
    /// Another preset is on the photo, or none.
    void appliedChanged();
    /// Values of the applied preset have been set otherwise than by its own sliders.
    void valuesChanged();
    /// The preset's picture is outdated.
    void lookChanged(const QModelIndex& preset);
    /// The photo under the looks has changed, and so have all pictures.
    void photoChanged();
    /// Names have changed, or which presets there are.
    void presetsChanged();
    /// The user's group has this preset, which is new or has been imported again: the first one of
    /// several.
    void presetAdded(const QModelIndex& preset);

private:
    /// Asks the user for a name; the first argument is proposed, names of the second are refused.
    using Ask = std::function<QString(const QString& proposed, const QStringList& taken)>;

    void Try(const std::function<void()>& work);
    bool MayBeCalled(const QString& name, const TakenNames& taken);
    QString AskName(const QString& proposed, const TakenNames& taken, const Ask& ask);
    void GoBack();
    void ApplyOn(const QModelIndex& preset, bool isFinished);
    void TakeOff();
    void ImportFiles(const QStringList& paths);
    QModelIndex FindUsers(const QString& name);
    void TellOf(const ImportReport& report);
    void ExportLook(const QModelIndex& preset);
    void WriteTable(const Zorvik::Quindle::EffectsSettings& look, const QString& title,
                    const QString& path);
    std::vector<PresetModel::PresetPtr> CopyLooks(const std::vector<QModelIndex>& presets,
                                                  const ShareDialog& dialog);
    bool WriteLooks(const std::vector<PresetModel::PresetPtr>& looks, const QString& path);
    std::optional<std::vector<QByteArray>>
    DrawPictures(const std::vector<PresetModel::PresetPtr>& looks);
    bool WriteDragged(const PresetController& preset, const QString& path);
    void TellCommitted();
    void Save();
    QString TryToSave();
    QString TryToSaveOr(const std::function<void()>& takeBack);
    void DrawAnew(const QModelIndex& preset);
    void Tell(const QString& text);
    /// Tells something that the user need not read: it leaves by itself.
    void TellBriefly(const QString& text);
    void SendPresetChanged();
    bool Fetch(const QModelIndex& preset);

    PresetCollection& m_presets;
    AppliedEdit& m_edit;
    RecentPresets& m_recent;
    LumetraEditor::IEditor& m_editor;
    PanelGuard m_guard;
    PresetDialogs m_dialogs;
    QStringList m_resourceFolders;
    QString m_settingsFile;
    Zorvik::Core::Property::Ptr m_lastStep; ///< never null, never changed
    bool m_hasUnsaved = false;
    bool m_isImporting = false;
    bool m_isStepping = false;                ///< by a key that is held
    std::unique_ptr<QTemporaryDir> m_dragged; ///< of files that are dragged; made with the first
};

} // namespace LumetraPlugin
