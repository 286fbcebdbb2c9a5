// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/CatalogueFiles.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>

namespace LumetraHost {

QStringList CatalogueFiles::GetDataFolders(const QString& installed)
{
    QStringList folders = QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation);
    std::reverse(folders.begin(), folders.end());
    if (!installed.isEmpty()) {
        folders.removeAll(QDir::cleanPath(installed));
        folders.prepend(QDir::cleanPath(installed));
    }
    folders.removeDuplicates();
    return folders;
}

QStringList CatalogueFiles::FindIn(const QString& folder)
{
    QStringList files;
    const QDir directory(folder);
    const QFileInfoList entries =
        directory.entryInfoList({QStringLiteral("*.json")}, QDir::Files, QDir::Name);
    for (const QFileInfo& entry : entries)
        if (!entry.fileName().endsWith(QLatin1String(".schema.json")))
            files.append(entry.filePath());
    return files;
}

QStringList CatalogueFiles::Find(const QStringList& dataFolders)
{
    QStringList files;
    for (const QString& folder : dataFolders) {
        const QStringList found = FindIn(folder + QStringLiteral("/lumetra/catalogue"));
        for (const QString& file : found) {
            const QString name = QFileInfo(file).fileName();
            const auto same = std::find_if(files.begin(), files.end(), [&](const QString& other) {
                return QFileInfo(other).fileName() == name;
            });
            if (same == files.end())
                files.append(file);
            else
                *same = file;
        }
    }
    return files;
}

} // namespace LumetraHost
