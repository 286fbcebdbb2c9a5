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

    /// "expected …, found …" for a name whose bytes are no text in the system's encoding, so that
    /// no path leads to its file.
    static QString DescribeBadName();
    /// DescribeBadName() for a path that has lost such bytes, in which the replacement character
    /// stands for them; empty for all others, and where there is such a file.
    static QString FindNameProblem(const QString& path);

    /// True for the name of a file that is taken for a photo, without its folder: hidden files are
    /// not. Reading decides by the content; nobody waits for 10,000 files to be opened.
    static bool IsPhotoName(const QString& name);
    /// The extensions, in lower case and without dot, of the files that are taken for photos.
    static const QStringList& GetExtensions();

private:
    void List(const QString& folder, Depth depth);

    QStringList m_photos;
    QStringList m_problems;
};

} // namespace LumetraHost
