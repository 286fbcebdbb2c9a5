// SPDX-License-Identifier: GPL-2.0-or-later
#include "plugins/PluginLoader.h"

#include "LumetraEditor/IEditorPlugin.h"
#include "plugins/Failure.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <QLibrary>
#include <QPluginLoader>

#include <algorithm>

namespace LumetraEditor {
namespace {

constexpr char Family[] = "org.lumetra.Editor.Plugin/";

QString VersionOf(const QString& interfaceId)
{
    return interfaceId.mid(static_cast<int>(sizeof(Family)) - 1);
}

/// Why a module with this interface id cannot be used; empty when it can.
QString FindMismatch(const QString& interfaceId)
{
    const QString own = QStringLiteral(LUMETRA_EDITOR_PLUGIN_IID);
    if (interfaceId == own)
        return {};
    if (interfaceId.startsWith(QLatin1String(Family)))
        return PluginLoader::tr("it was made for version %1 of the editor's interface, expected "
                                "version %2")
            .arg(VersionOf(interfaceId), VersionOf(own));
    return PluginLoader::tr("it is no module of this editor");
}

/// The version that moc was given for the module, as lumetra_editor_plugin() does.
QString ReadVersion(const QJsonObject& metaData)
{
    return metaData.value(QStringLiteral("moduleVersion")).toArray().at(0).toString();
}

QString IdOf(const QString& path)
{
    const QString name = QFileInfo(path).completeBaseName();
    return name.startsWith(QLatin1String("lib")) ? name.mid(3) : name;
}

} // namespace

QStringList GetPluginFolders()
{
    QStringList candidates = qEnvironmentVariable("LUMETRA_PLUGIN_PATH")
                                 .split(QDir::listSeparator(), Qt::SkipEmptyParts);
    candidates.append(QDir::home().absoluteFilePath(QStringLiteral(".local/lib/lumetra/plugins")));
    const QDir program(QCoreApplication::applicationDirPath());
    for (const char* relative : {LUMETRA_INSTALLED_PLUGINS, LUMETRA_BUILT_PLUGINS})
        candidates.append(program.absoluteFilePath(QLatin1String(relative)));

    QStringList folders;
    for (const QString& candidate : candidates) {
        const QString folder = QDir(candidate).canonicalPath();
        if (!folder.isEmpty() && !folders.contains(folder))
            folders.append(folder);
    }
    return folders;
}

void PluginLoader::LoadFolders(const QStringList& folders, const QStringList& off)
{
    for (const QString& folder : folders) {
        const QFileInfoList files = QDir(folder).entryInfoList(QDir::Files, QDir::Name);
        for (const QFileInfo& file : files)
            if (QLibrary::isLibrary(file.fileName()))
                LoadModule(file.absoluteFilePath(), off);
    }
}

bool PluginLoader::IsKnown(const QString& id) const
{
    return std::any_of(m_plugins.begin(), m_plugins.end(),
                       [&id](const LoadedPlugin& plugin) { return plugin.id == id; });
}

void PluginLoader::LoadModule(const QString& path, const QStringList& off)
{
    QPluginLoader loader(path);
    // A function that is missing is told now; the first call of it would end the program.
    loader.setLoadHints(QLibrary::ResolveAllSymbolsHint);
    // The metadata are read from the file; nothing of the module runs yet.
    const QJsonObject metaData = loader.metaData();
    FoundModule module{IdOf(path), path, ReadVersion(metaData), false, {}};
    const QString mismatch = FindMismatch(metaData.value(QStringLiteral("IID")).toString());
    if (IsKnown(module.id))
        module.reason = tr("another module of that name was found before it");
    else if (!mismatch.isEmpty())
        Refuse(module, mismatch);
    else if (off.contains(module.id))
        module.reason = tr("switched off");
    else
        Load(module, loader);
    m_modules.push_back(module);
}

void PluginLoader::Load(FoundModule& module, QPluginLoader& loader)
{
    try {
        if (auto* const root = qobject_cast<IEditorPlugin*>(loader.instance())) {
            m_plugins.push_back({module.id, module.path, root});
            module.isLoaded = true;
        } else {
            Refuse(module, tr("it cannot be loaded: %1")
                               .arg(loader.isLoaded() ? tr("its root object is of another kind")
                                                      : loader.errorString()));
        }
    } catch (...) {
        Refuse(module, tr("it cannot be loaded: %1").arg(Failure::Describe()));
    }
}

void PluginLoader::Refuse(FoundModule& module, const QString& reason)
{
    module.reason = reason;
    m_reports.append(QStringLiteral("%1: %2").arg(module.path, reason));
}

} // namespace LumetraEditor
