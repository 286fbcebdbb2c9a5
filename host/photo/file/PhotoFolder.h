// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace LumetraHost {

/// The photos of a folder, told by the extensions of their names. Hidden files and folders are
/// passed over, and so are links to folders, which could lead in a circle. Files are not opened.
class PhotoFolder
{
public:
    enum class Depth
    {
        FolderAlone,
        WithSubfolders
    };

    /// Lists the folder at `path`, which may be a link itself.
    explicit PhotoFolder(const QString& path, Depth depth = Depth::FolderAlone);

    /// The photos, each path beginning with that of the folder: first those of the folder by name,
    /// in the order of their characters' codes, then those of its subfolders in the same way.
    const QStringList& GetPhotos() const { return m_photos; }
    /// Sentences about folders that cannot be listed and names that cannot be read; each begins
    /// with the path.
    const QStringList& GetProblems() const { return m_problems; }

    /// The extensions, in lower case and without dot, of the files that are taken for photos.
    static const QStringList& GetExtensions();

private:
    void List(const QString& folder, Depth depth);

    QStringList m_photos;
    QStringList m_problems;
};

} // namespace LumetraHost
