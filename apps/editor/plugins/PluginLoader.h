// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QCoreApplication>
#include <QStringList>

#include <vector>

class QPluginLoader;

namespace LumetraEditor {

class IEditorPlugin;

/// The editor's folders of modules, in order: those that the environment variable
/// LUMETRA_PLUGIN_PATH names, separated as in PATH, then the user's,
/// "~/.local/lib/lumetra/plugins", then the editor's own, which lies beside the libraries that the
/// editor was installed or built with. Missing folders are left out.
QStringList GetPluginFolders();

/// A module that the editor could load.
struct LoadedPlugin
{
    QString id; ///< the module's file name without "lib" and its extension
    QString path;
    IEditorPlugin* root = nullptr; ///< lives until the program ends
};

/// A file that was taken for a module, and what became of it.
struct FoundModule
{
    QString id;
    QString path;
    QString version; ///< what its author calls it; empty where the author says nothing
    bool isLoaded = false;
    QString reason; ///< a clause that says why it is not loaded; empty where it is
};

/// Loads the modules of folders. A module is inspected before it is loaded: only one that was made
/// for this editor's interface version is run. Modules are never unloaded.
class PluginLoader
{
    Q_DECLARE_TR_FUNCTIONS(LumetraEditor::PluginLoader)

public:
    /// Loads modules in the order of the folders and of their names; the first of two with the same
    /// id. Those whose ids are in `off` are found and not loaded.
    void LoadFolders(const QStringList& folders, const QStringList& off = {});

    const std::vector<LoadedPlugin>& GetPlugins() const { return m_plugins; }
    /// All modules that were found, in that order, loaded or not.
    const std::vector<FoundModule>& GetModules() const { return m_modules; }
    /// One sentence for each module that could not be used.
    const QStringList& GetReports() const { return m_reports; }

private:
    void LoadModule(const QString& path, const QStringList& off);
    void Load(FoundModule& module, QPluginLoader& loader);
    void Refuse(FoundModule& module, const QString& reason);
    bool IsKnown(const QString& id) const;

    std::vector<LoadedPlugin> m_plugins;
    std::vector<FoundModule> m_modules;
    QStringList m_reports;
};

} // namespace LumetraEditor
