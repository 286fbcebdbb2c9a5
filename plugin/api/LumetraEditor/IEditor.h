// SPDX-License-Identifier: MIT
#pragma once

#include "LumetraEditor/EditorLayer.h"
#include "LumetraEditor/EffectDescription.h"
#include "LumetraEditor/ILookKeeper.h"
#include "Zorvik/Proc/Frame.h"
#include "Zorvik/Quindle/EffectsSettings.h"

#include <QString>

#include <memory>
#include <vector>

class QUndoCommand;

namespace Zorvik::Lumetra {
class IWorkspaceController;
}

namespace LumetraEditor {

/// The editor serves its panels through this interface, which it implements and hands to
/// IEditorPlugin::CreatePanel(). It outlives every panel and is used on the GUI thread only.
/// Requests of a panel that has been put out of use are ignored.
class IEditor
{
public:
    /// Returns the open photo's drawer and what belongs to it, never null. It is the same object
    /// for all photos.
    virtual std::shared_ptr<Zorvik::Lumetra::IWorkspaceController> GetWorkspace() = 0;
    /// Returns the path of the open photo, empty when none is open.
    virtual QString GetPhotoPath() const = 0;

    /// Shows the settings, which are copied, on top of the photo without applying them; null shows
    /// the photo as it is. The next change of what the drawer shows ends it, too.
    virtual void ShowOnPhoto(const Zorvik::Quindle::EffectsSettings* settings) = 0;
    /// Returns a picture of the settings on the committed photo, cut and scaled as
    /// IQuindleDrawer::RenderPreview() does, but that what is cut out of a portrait lies around its
    /// upper third, where heads are, if it was rendered for the same key and arguments.
    /// Otherwise returns a null frame, queues the rendering on a worker and calls PreviewReady()
    /// later; the request made last is rendered first. All panels share the keys, so begin them
    /// with a name of the panel's own. Without a photo the frame is null and nothing is queued. A
    /// target below 1 x 1 pixels is the platform's Exception.
    virtual Zorvik::Proc::Frame RequestPreview(const QString& key,
                                               const Zorvik::Proc::FrameTarget& target,
                                               const Zorvik::Quindle::EffectsSettings& settings,
                                               int cropPolicy, int fitPolicy, unsigned flags) = 0;
    /// Forgets the previews that are queued, those of other panels included; PreviewReady() does
    /// not come for them.
    virtual void CancelPreviews() = 0;

    /// Tells that the user has finished one step of the edit; a drag is a step when it ends. The
    /// editor reads the panel's SaveEdit() and keeps the step for undo. `text` names it for the
    /// menu, in the user's language. Does nothing when the edit is what it was, while an edit is
    /// being restored, and without a photo.
    virtual void NoteEdit(const QString& text) = 0;
    /// Keeps a step that is no part of the edit, such as a deleted preset, for undo. Takes
    /// ownership of `command`, ignores null, and calls redo() at once. Changes that redo() makes to
    /// the edit belong to the same step: NoteEdit() does nothing during it, and after undo() and a
    /// later redo() the editor restores the edit itself.
    virtual void PushUndo(QUndoCommand* command) = 0;
    /// Shows a message to the user, in the user's language, without waiting for an answer.
    virtual void ShowMessage(const QString& text) = 0;

    /// Returns the layers of the edit as they are now, bottom first. Open ones lie together on the
    /// committed ones; while the user has opened a lower layer again, the later ones lie above it,
    /// closed and in no package of the drawer. Names and intensities of open ones are those of the
    /// last step.
    virtual std::vector<EditorLayer> GetLayers() const = 0;
    /// Has the look kept among the user's, by the first panel that keeps looks. Returns a sentence
    /// in the user's language that says why that has failed; empty when the look is kept and saved.
    /// It fails where no panel keeps looks. No part of the edit changes.
    virtual QString StoreLook(const NewLook& look) = 0;
    /// Returns the name of the look with that id among the user's; empty when there is none, as for
    /// a look of the catalogue.
    virtual QString FindLookName(const QString& id) const = 0;
    /// Gives that look other effects, see ILookKeeper::UpdateLook(). It notes no step of the edit.
    virtual QString UpdateLook(const QString& id,
                               const Zorvik::Quindle::EffectsSettings& settings) = 0;

    /// Describes the effects that the editor draws, with their titles in the user's language of
    /// this moment; ask again when the language changes. Every effect's defaults change nothing.
    virtual std::vector<EffectDescription> DescribeEffects() const = 0;

    /// Shows a message that leaves by itself after some seconds, for something that went as the
    /// user wanted. What the user has to read, such as an error, goes to ShowMessage().
    virtual void ShowBriefly(const QString& text) = 0;

protected:
    ~IEditor() = default;
};

} // namespace LumetraEditor
