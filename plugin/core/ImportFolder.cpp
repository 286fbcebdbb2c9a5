// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/ImportFolder.h"

#include "core/PresetImport.h"
#include "core/looks/PictureLooks.h"
#include "lut/HaldReader.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <filesystem>
#include <system_error>

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
            m_problems.append(
                ImportFolder::tr("%1: expected at most %2 files in folders of at most "
                                 "%3 levels, found more")
                    .arg(folder, QString::number(ImportFolder::MostFiles),
                         QString::number(ImportFolder::DeepestFolder)));
            m_files.clear();
        } else if (m_files.isEmpty() && QFileInfo(folder).isReadable()) {
            m_problems.append(
                ImportFolder::tr("%1: expected files with looks, found none").arg(folder));
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
            m_problems.append(
                ImportFolder::tr("%1: expected a folder that can be read").arg(folder));
            return;
        }
        TellUnnameable(folder);
        // Links that lead nowhere and pipes are listed too: reading tells what is wrong with them.
        const QDir::Filters filters =
            QDir::Files | QDir::Dirs | QDir::System | QDir::NoDotAndDotDot;
        for (const QFileInfo& entry :
             QDir(folder).entryInfoList(filters, QDir::Name | QDir::DirsLast)) {
            // Paths are put together here, so that they begin as the user has written the folder.
            const QString path = QDir(folder).filePath(entry.fileName());
            if (entry.isDir() && !entry.isSymLink())
                Visit(path, depth + 1);
            else if (!entry.isDir() && IsLook(path))
                Add(path);
        }
    }

    /// Qt passes over names that are no text in the encoding of file names.
    void TellUnnameable(const QString& folder)
    {
        std::error_code error;
        const std::filesystem::path path(QFile::encodeName(folder).toStdString());
        for (std::filesystem::directory_iterator entry(path, error), end; !error && entry != end;
             entry.increment(error)) {
            const auto bytes = QByteArray::fromStdString(entry->path().filename().native());
            const QString name = QFile::decodeName(bytes);
            if (QFile::encodeName(name) != bytes && PresetImport::IsImportable(name))
                m_problems.append(
                    ImportFolder::tr("%1: expected a name in the encoding of file names")
                        .arg(QDir(folder).filePath(name)));
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
