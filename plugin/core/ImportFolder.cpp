// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/ImportFolder.h"

#include "core/PresetImport.h"
#include "core/looks/PictureLooks.h"
#include "lut/HaldReader.h"

#include <QDir>
#include <QFileInfo>

namespace LumetraPlugin {
namespace {

/// True for files that are taken out of a folder. A picture there may well be a photo or a
/// preview.
bool IsLook(const QString& path)
{
    if (!PresetImport::IsImportable(path))
        return false;
    return !PictureLooks::IsPictureName(path) || LumetraHost::HaldReader::HasTableSize(path);
}

class Walk
{
public:
    explicit Walk(QStringList& problems) : m_problems(problems) {}

    QStringList Find(const QString& folder)
    {
        m_files.clear();
        m_isTooLarge = false;
        Visit(folder, 1);
        if (m_isTooLarge) {
            m_problems.append(QStringLiteral("%1: expected at most %2 files in folders of at most "
                                             "%3 levels, found more")
                                  .arg(folder, QString::number(ImportFolder::MostFiles),
                                       QString::number(ImportFolder::DeepestFolder)));
            m_files.clear();
        } else if (m_files.isEmpty() && QFileInfo(folder).isReadable()) {
            m_problems.append(
                QStringLiteral("%1: expected files with looks, found none").arg(folder));
        }
        return m_files;
    }

private:
    void Visit(const QString& folder, int depth)
    {
        m_isTooLarge = m_isTooLarge || depth > ImportFolder::DeepestFolder;
        if (m_isTooLarge)
            return;
        if (!QFileInfo(folder).isReadable()) {
            m_problems.append(QStringLiteral("%1: expected a folder that can be read").arg(folder));
            return;
        }
        const QDir::SortFlags order = QDir::Name | QDir::DirsLast;
        const auto entries =
            QDir(folder).entryInfoList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot, order);
        for (const QFileInfo& entry : entries) {
            // Paths are put together here, so that they begin as the user has written the folder.
            const QString path = QDir(folder).filePath(entry.fileName());
            if (entry.isDir() && !entry.isSymLink())
                Visit(path, depth + 1);
            else if (entry.isFile() && IsLook(path))
                Add(path);
        }
    }

    void Add(const QString& path)
    {
        m_files.append(path);
        m_isTooLarge = m_isTooLarge || m_files.size() > ImportFolder::MostFiles;
    }

    QStringList& m_problems;
    QStringList m_files;
    bool m_isTooLarge = false;
};

} // namespace

QStringList ImportFolder::FindFiles(const QStringList& paths, QStringList& problems)
{
    QStringList files;
    Walk walk(problems);
    for (const QString& path : paths) {
        if (QFileInfo(path).isDir())
            files += walk.Find(path);
        else
            files.append(path);
    }
    return files;
}

} // namespace LumetraPlugin
