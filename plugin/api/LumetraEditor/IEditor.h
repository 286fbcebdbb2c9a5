// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Proc/Frame.h"
#include "Zorvik/Quindle/EffectsSettings.h"

#include <QString>

#include <memory>

class QUndoCommand;

namespace Zorvik::Lumetra {
class IWorkspaceController;
}

namespace LumetraEditor {

/// What the editor does for a panel. Outlives every panel; used on the GUI thread only.
class IEditor
{
public:
    /// The open photo's drawer and what belongs to it; the same object for all photos.
    virtual std::shared_ptr<Zorvik::Lumetra::IWorkspaceController> GetWorkspace() = 0;
    /// Empty when no photo is open.
    virtual QString GetPhotoPath() const = 0;

    /// Shows the settings on top of the photo without applying them; null: the photo as it is.
    virtual void ShowOnPhoto(const Zorvik::Quindle::EffectsSettings* settings) = 0;
    /// The settings on the committed photo, cut and scaled as IQuindleDrawer::RenderPreview does.
    /// Returns what was rendered for the same key and arguments; otherwise a null frame, queues the
    /// rendering on a worker, and calls the panel's PreviewReady() later. What was asked for last
    /// is rendered first.
    virtual Zorvik::Proc::Frame RequestPreview(const QString& key,
                                               const Zorvik::Proc::FrameTarget& target,
                                               const Zorvik::Quindle::EffectsSettings& settings,
                                               int cropPolicy, int fitPolicy, unsigned flags) = 0;
    /// Forgets the previews that are queued.
    virtual void CancelPreviews() = 0;

    /// The user has finished one step of the edit (a drag ends as one): the editor reads the
    /// panel's SaveEdit() and keeps the step for undo. `text` names it for the menu.
    virtual void NoteEdit(const QString& text) = 0;
    /// For steps that are no part of the edit, such as a deleted preset. Takes ownership; redo()
    /// is called at once. What redo() changes of the edit belongs to the same step: NoteEdit() does
    /// nothing during it, and after undo() and a later redo() the editor restores the edit itself.
    virtual void PushUndo(QUndoCommand* command) = 0;
    /// Shows a message to the user without stopping him.
    virtual void ShowMessage(const QString& text) = 0;

protected:
    ~IEditor() = default;
};

} // namespace LumetraEditor
