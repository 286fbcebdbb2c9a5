// SPDX-License-Identifier: MIT
#pragma once

#include "Zorvik/Core/Property.h"

#include <QString>
#include <QtPlugin>

#include <memory>

class QWidget;

namespace LumetraEditor {

class IEditor;
class ILookKeeper;

/// A panel stands beside the photo. A module implements it. The editor owns it, deletes it before
/// its widget, and calls it on the GUI thread only. An exception out of any operation, whatever its
/// type is, puts the panel out of use until the next start.
class IEditorPanel
{
public:
    virtual ~IEditorPanel() = default;

    /// Returns the panel's widget, always the same one. The editor's window owns it once it has
    /// been placed there. Null, and a widget that is deleted by the panel, put the panel out of
    /// use.
    virtual QWidget* GetWidget() = 0;

    /// Tells that another photo is open in the drawer, or none. Nothing is applied then; an earlier
    /// edit of the photo, if there is one, follows through RestoreEdit().
    virtual void PhotoChanged() = 0;
    /// Tells that a preview can be had now by the request that asked for it. Every panel hears of
    /// every key, so pass over foreign ones. An empty key says that all previews have to be asked
    /// for again, because the monitor's colours have changed.
    virtual void PreviewReady(const QString& key) = 0;

    // Keys of an edit that have a meaning to the editor.
    static constexpr char EditPreset[] = "preset";
    static constexpr char EditName[] = "name";
    static constexpr char EditIntensity[] = "intensity";

    /// Returns the panel's part of the edit as it is now, with everything that RestoreEdit() needs
    /// to bring it back, even after a restart. The editor calls it after every step and before it
    /// leaves a photo, copies the tree at once, and never changes it. A node without entries means
    /// that nothing is applied. The tree is kept with the order of its keys, its integers to the
    /// digit and its doubles to the bit. A null pointer, also one further down, a number that is
    /// not finite, text that is no UTF-8, an empty key, more than 60 levels of nodes and lists,
    /// 10,000 keys in a node, 1,000,000 values or 24 MB as JSON put the panel out of use.
    /// Three entries have a meaning to the editor and may be left out: EditPreset is the preset
    /// name of the package that was drawn; EditName, a text, and EditIntensity, a whole number, are
    /// what an exported photo tells of it.
    virtual Zorvik::Core::Property::Ptr SaveEdit() const = 0;
    /// Makes the edit what it was when SaveEdit() returned `edit`; the drawer has no open packages
    /// of the panel then, and the editor puts those of all panels into their order afterwards. The
    /// tree is a copy for the panel, which may keep and change it; it is never null, and the first
    /// node has no name. A node without entries means that nothing is applied. Unknown and wrong
    /// entries are left out and reported by IEditor::ShowMessage().
    virtual void RestoreEdit(const Zorvik::Core::Property::Ptr& edit) = 0;
    /// True when the user has changed something and neither committed nor saved it. The editor asks
    /// the user about such changes when its window is closed.
    virtual bool HasUnsavedChanges() const = 0;
    /// Tells that the user ends the program. False keeps it running. Ask the user here when
    /// something would be lost that is no part of the edit and could not be saved; else return true
    /// at once.
    virtual bool MayEnd() { return true; }

    /// Tells that another module has committed, which takes all open packages: those of this panel
    /// are part of the photo now and are found no more. Forget them, as after a commit of your own,
    /// so that SaveEdit() tells nothing of them; nothing has to be drawn or noted, since the other
    /// module notes the step. NoteEdit() does nothing during it. Is not called where the panel had
    /// no open package.
    virtual void PackagesCommitted() {}
    /// Returns the panel as a keeper of the user's looks, always the same one, which lives as long
    /// as the panel; null when it keeps none.
    virtual ILookKeeper* GetLookKeeper() { return nullptr; }
};

/// The root object of a module implements this interface. The editor loads every module in its
/// plug-in folders whose interface version is its own.
class IEditorPlugin
{
public:
    virtual ~IEditorPlugin() = default;

    /// Returns the panel's title in the user's language; it is asked for again when the language
    /// changes. For an empty title the tab shows the module's id, its file name without "lib" and
    /// extension.
    virtual QString GetTitle() const = 0;
    /// Makes the module's panel. The editor calls it once, when it starts; `editor` outlives the
    /// panel. Throw an exception, whose text the user is shown, when the panel cannot work at all;
    /// null counts as one.
    virtual std::unique_ptr<IEditorPanel> CreatePanel(IEditor& editor) = 0;
};

} // namespace LumetraEditor

#define LUMETRA_EDITOR_PLUGIN_IID "org.lumetra.Editor.Plugin/2.3"
Q_DECLARE_INTERFACE(LumetraEditor::IEditorPlugin, LUMETRA_EDITOR_PLUGIN_IID)
