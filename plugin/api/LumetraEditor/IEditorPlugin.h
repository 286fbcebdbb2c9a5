// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QJsonObject>
#include <QString>
#include <QtPlugin>

#include <memory>

class QWidget;

namespace LumetraEditor {

class IEditor;

/// A panel beside the photo. Owned by the editor, which deletes it before its widget. An exception
/// out of any operation, whatever its type is, puts the panel out of use until the next start.
class IEditorPanel
{
public:
    virtual ~IEditorPanel() = default;

    /// Owned by the editor's window once it has been placed there.
    virtual QWidget* GetWidget() = 0;

    /// Another photo is open in the drawer, or none.
    virtual void PhotoChanged() = 0;
    /// A preview that was asked for can be had now. An empty key: all of them have to be asked for
    /// again, since the monitor's colours have changed.
    virtual void PreviewReady(const QString& key) = 0;

    /// What the panel's part of the edit is now: enough for RestoreEdit() to bring it back, after a
    /// restart too. Three members have a meaning to the editor and may be left out: "preset", the
    /// preset name of the package that was drawn, and what an exported photo then tells of it:
    /// "name" and "intensity", a whole number.
    virtual QJsonObject SaveEdit() const = 0;
    /// Makes the edit what it was; the drawer has no open packages then. An empty object: nothing
    /// is applied. Unknown and wrong members are left out and reported.
    virtual void RestoreEdit(const QJsonObject& edit) = 0;
    /// True when the user has changed something that he has neither committed nor saved.
    virtual bool HasUnsavedChanges() const = 0;
};

/// The root object of a module in the editor's plug-in folder. The editor loads every module there
/// whose interface version is its own.
class IEditorPlugin
{
public:
    virtual ~IEditorPlugin() = default;

    /// The panel's title, in the user's language.
    virtual QString GetTitle() const = 0;
    /// `editor` outlives the panel. Exception when the panel cannot work at all; null counts as
    /// one.
    virtual std::unique_ptr<IEditorPanel> CreatePanel(IEditor& editor) = 0;
};

} // namespace LumetraEditor

#define LUMETRA_EDITOR_PLUGIN_IID "org.lumetra.Editor.Plugin/1.0"
Q_DECLARE_INTERFACE(LumetraEditor::IEditorPlugin, LUMETRA_EDITOR_PLUGIN_IID)
