// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/CatalogueLocations.h"

#include "catalogue/CatalogueFiles.h"

#include <QCoreApplication>
#include <QDir>

#include <algorithm>

namespace LumetraPlugin {
namespace {

using LumetraHost::CatalogueFiles;

/// The data folder that this program was installed with: "share" beside its "bin".
QString InstalledDataFolder()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../share"));
}

} // namespace

QStringList CatalogueLocations::FindFiles()
{
    const QStringList folders = CatalogueFiles::GetDataFolders(InstalledDataFolder());
    QStringList files = CatalogueFiles::Find(folders);
#ifdef LUMETRA_SOURCE_CATALOGUE
    if (!QDir(InstalledDataFolder() + QStringLiteral("/lumetra/catalogue")).exists())
        files = CatalogueFiles::FindIn(QStringLiteral(LUMETRA_SOURCE_CATALOGUE)) + files;
#endif
    return files;
}

QString CatalogueLocations::GetSamplePhoto()
{
    const QString sample = QStringLiteral("/sample/sample.jpg");
#ifdef LUMETRA_SOURCE_CATALOGUE
    if (!QDir(InstalledDataFolder() + QStringLiteral("/lumetra/catalogue")).exists())
        return QStringLiteral(LUMETRA_SOURCE_CATALOGUE) + sample;
#endif
    return InstalledDataFolder() + QStringLiteral("/lumetra/catalogue") + sample;
}

QStringList CatalogueLocations::GetResourceFolders()
{
    QStringList folders;
    for (const QString& folder : CatalogueFiles::GetDataFolders(InstalledDataFolder()))
        folders.prepend(folder + QStringLiteral("/lumetra/resources"));
    return folders;
}

} // namespace LumetraPlugin
