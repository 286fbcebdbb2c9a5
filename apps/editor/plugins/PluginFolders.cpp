// SPDX-License-Identifier: GPL-2.0-or-later
#include "plugins/PluginFolders.h"

#include <QCoreApplication>
#include <QDir>

namespace LumetraEditor {

QStringList GetPluginFolders()
{
    QStringList candidates = qEnvironmentVariable("LUMETRA_PLUGIN_PATH")
                                 .split(QDir::listSeparator(), Qt::SkipEmptyParts);
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

} // namespace LumetraEditor
