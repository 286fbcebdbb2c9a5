// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "LumetraEditor/IEditor.h"
#include "drawer/stack/IDrawerObserver.h"
#include "edit/Sidecar.h"
#include "edits/EditState.h"
#include "plugins/Panels.h"
#include "session/ManySteps.h"
#include "session/PhotoLoader.h"

#include <QObject>
#include <QUndoStack>

#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace LumetraHost {
class AsyncPreviews;
class DisplayTransform;
class WorkspaceController;
} // namespace LumetraHost

namespace LumetraEditor {

/// Questions to the user, which the window asks. An empty function stands for a user who says no.
struct EditorQuestions
{
    /// The photo's file is not the one that was edited. True discards the edit, false keeps it for
    /// this file.
    std::function<bool(const QString& photo)> shallStartAnew;
    /// The photo is to be left and its edit could not be written. True discards the edit.
    std::function<bool(const QString& photo, const QString& problem)> mayLoseEdit;
};

/// The editor without its window: the open photo and its drawer, the panels, and the steps of the
/// edit. There is one photo at a time; while another one is being read the drawer is locked. GUI
/// thread only. Outlives the panels, which their window removes first.
class Editor : public QObject, public IEditor, private LumetraHost::IDrawerObserver
{
    Q_OBJECT

public:
    explicit Editor(QObject* parent = nullptr);
    ~Editor() override;

    void SetQuestions(const EditorQuestions& questions) { m_questions = questions; }

    /// Reads the photo beside the GUI thread. Ends with photoChanged(), or with a message and the
    /// earlier photo as it was. Returns false, and does nothing, when the earlier one may not be
    /// left.
    bool OpenPhoto(const QString& path);
    void ClosePhoto();
    /// True when the edit is saved as it is at this moment, or the user does without.
    bool MayLeavePhoto();
    bool IsOpening() const { return m_loader.IsLoading(); }
    bool HasPhoto() const { return !m_path.isEmpty(); }
    const LumetraHost::KeptPhoto& GetPhoto() const { return m_photo; }

    LumetraHost::WorkspaceController& GetHost() { return *m_workspace; }
    QUndoStack& GetUndoStack() { return m_undoStack; }
    /// Steps on several photos, the one that is shown among them or not.
    ManySteps& GetManySteps() { return m_manySteps; }
    /// Photos that every step goes to which a panel notes on the photo that is shown. It need not
    /// be left out. Asked for at each step; an empty function: none.
    void SetFollowers(const std::function<QStringList()>& followers) { m_followers = followers; }
    /// The package that a panel shows without having applied it; empty again after the next edit.
    const std::optional<Zorvik::Quindle::EffectsSettings>& GetShownOnTop() const
    {
        return m_shownOnTop;
    }

    /// Sets the colours of the monitor, for everything that is shown; null: sRGB. Saved and
    /// exported files do not depend on them.
    void SetDisplay(const std::shared_ptr<const LumetraHost::DisplayTransform>& display);
    const std::shared_ptr<const LumetraHost::DisplayTransform>& GetDisplay() const
    {
        return m_display;
    }

    /// Makes the module's panel, whose widget the caller places. Null, and a message, when the
    /// module fails. The panel lives until RemovePanels(), even if it fails later.
    GuardedPanel* AddPanel(const LoadedPlugin& plugin);
    /// Removes all panels. To be called before their widgets are deleted.
    void RemovePanels();
    /// The ids and titles of the modules with panels in use, in the order of their tabs.
    std::vector<std::pair<QString, QString>> GetModules() const { return m_panels.GetTitles(); }
    /// The id of the module that keeps the user's looks; empty when there is none.
    QString FindLookModule() const { return m_panels.FindLookModule(); }
    /// False when a panel has to keep something else and the user wants to see to it.
    bool MayEndPanels() const { return m_panels.MayEnd(); }
    /// Returns when the edit as it is at this moment is on the disk; false when it could not be
    /// written.
    bool SaveEdit();
    /// The edit as it is at this moment; without a photo empty.
    LumetraHost::EditState GetEdit() const;
    /// The layers of the edit, bottom first.
    std::vector<LumetraHost::EditLayer> CaptureLayers() const { return CaptureEdit().layers; }
    /// Sets a layer of CaptureLayers() on or off, as a step of this photo alone. A layer that is
    /// off is neither shown nor exported; an open one is on again when its module next draws it.
    /// Does nothing for a position without a layer, and while another photo is being read.
    void SetLayerOn(std::size_t position, bool isOn);
    /// Tells whether panels have made the wanted edit of one that they were given.
    using IsRight = std::function<bool(const LumetraHost::EditState& wanted,
                                       const LumetraHost::EditState& made)>;
    /// Changes the edit of the photo as one step called `text`. Returns false where that would
    /// change nothing, while another photo is being read, and where `isRight`, if there is one,
    /// says no: the edit is then as it was before.
    bool ChangeEdit(const QString& text, const EditChange& change, const IsRight& isRight = {});
    /// True when the module has a panel that has not failed.
    bool IsInUse(const QString& module) const { return m_panels.IsInUse(module); }
    /// The name of the layer's look in the user's language; empty for a layer without a look.
    QString FindShownName(const LumetraHost::EditLayer& layer) const;
    /// The name, in the user's language, of the look with that id; empty when the module knows
    /// none.
    QString FindShownName(const QString& module, const QString& id) const;
    /// The layers after the last step, bottom first. Asks no panel.
    const std::vector<LumetraHost::EditLayer>& GetSteppedLayers() const { return m_state.layers; }
    /// The packages of all layers that are on, bottom first.
    std::vector<Zorvik::Quindle::EffectsSettings> GetPackages() const;
    /// Records of those packages that are presets.
    std::vector<LumetraHost::EditRecord> GetRecords() const;

    std::shared_ptr<Zorvik::Lumetra::IWorkspaceController> GetWorkspace() override;
    QString GetPhotoPath() const override { return m_path; }
    void ShowOnPhoto(const Zorvik::Quindle::EffectsSettings* settings) override;
    Zorvik::Proc::Frame RequestPreview(const QString& key, const Zorvik::Proc::FrameTarget& target,
                                       const Zorvik::Quindle::EffectsSettings& settings,
                                       int cropPolicy, int fitPolicy, unsigned flags) override;
    void CancelPreviews() override;
    void NoteEdit(const QString& text) override;
    void PushUndo(QUndoCommand* command) override;
    void ShowMessage(const QString& text) override { emit messageGiven(text); }
    void ShowBriefly(const QString& text) override { emit briefGiven(text); }
    std::vector<EditorLayer> GetLayers() const override;
    QString StoreLook(const NewLook& look) override { return m_panels.StoreLook(look); }
    QString FindLookName(const QString& id) const override { return m_panels.FindLookName(id); }
    QString UpdateLook(const QString& id,
                       const Zorvik::Quindle::EffectsSettings& settings) override;
    std::vector<EffectDescription> DescribeEffects() const override;
    /// Shows a message about the program, not a photo: it stays when another photo comes.
    void ShowNotice(const QString& text) { emit noticeGiven(text); }

signals:
    void openingStarted(const QString& path);
    /// The photo has been opened, or could not be.
    void openingEnded();
    /// Another photo is open, or none.
    void photoChanged();
    /// This photo cannot be opened; `problem` says why, with the file's name.
    void photoRefused(const QString& path, const QString& problem);
    /// The edit of this photo has been written to the disk.
    void editSaved(const QString& path);
    void shownOnTopChanged();
    /// The layers are other ones, or another photo is open.
    void layersChanged();
    void displayChanged();
    void messageGiven(const QString& text);
    void noticeGiven(const QString& text);
    void briefGiven(const QString& text);

private:
    void FrameChanged() override;
    void CommittedPhotoChanged() override;

    void TakePhoto(const QString& path, const LumetraHost::KeptPhoto& photo,
                   const LumetraHost::PhotoIdentity& identity);
    void RefusePhoto(const QString& path, const QString& problem);
    void SetPhoto(const QString& path, const LumetraHost::KeptPhoto& photo,
                  const LumetraHost::PhotoIdentity& identity);
    /// Restores the edit of the photo's sidecar, or begins with the bare photo.
    void OpenSidecar(const LumetraHost::PhotoIdentity& identity);
    /// Asks the user about an edit that was made for another file.
    void SettleEditOfOtherPhoto();
    /// The edit as it is at this moment.
    LumetraHost::EditState CaptureEdit() const;
    /// Adds the drawer's layers to a state that has its panels' parts.
    void AddLayers(LumetraHost::EditState& state) const;
    std::function<bool(const QString& module)> MakeIsInUse() const;
    void Enter(LumetraHost::EditState state);
    void RestoreEdit(const LumetraHost::EditState& state);
    void RestoreStep(const LumetraHost::EditState& state);
    /// Gives the photo another edit, as a part of a step, and saves it.
    void PutEdit(const LumetraHost::EditState& edit);
    /// Makes the workspace of a module, whose commits the other modules hear of.
    std::shared_ptr<Zorvik::Lumetra::IWorkspaceController> MakeWorkspace(const QString& module);
    LumetraHost::EditState RunCommand(const std::function<void()>& command);
    /// Handles an exception of an event handler, that of a panel's object or any other.
    void TakeFailure(QObject* receiver, const QString& reason);
    void LockDrawer(bool isLocked);
    void KeepEdit();
    void KeepStep(const QString& text, const QStringList& others);
    /// Follows the restoring of panels, see DrawnLayers.
    void RestoreOpenLayers();

    std::shared_ptr<LumetraHost::WorkspaceController> m_workspace;
    std::unique_ptr<LumetraHost::AsyncPreviews> m_previews; ///< ends before the workspace
    PhotoLoader m_loader;
    QString m_path;
    LumetraHost::KeptPhoto m_photo;
    Panels m_panels;
    std::optional<Zorvik::Quindle::EffectsSettings> m_shownOnTop;
    std::shared_ptr<const LumetraHost::DisplayTransform> m_display;
    LumetraHost::EditState m_state;                ///< after the last step
    std::optional<LumetraHost::EditState> m_found; ///< in the photo's file, until it is written
    bool m_isRestoring = false;
    bool m_mayLoseEdit = false; ///< the user lets m_state go unsaved
    EditorQuestions m_questions;
    Sidecar m_sidecar;
    QUndoStack m_undoStack;
    std::function<QStringList()> m_followers;
    ManySteps m_manySteps;
};

} // namespace LumetraEditor
