// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>

namespace LumetraHost {

/// The one way in which files that the user owns are written: presets, sidecars, exported pictures
/// and tables. Either the whole new content is on the disk, or the file is as it was before.
/// It does not lock: whoever shares a file with other programs holds a lock around it.
class CheckedFileWriter
{
public:
    /// Replaces the file at `path`, or creates it; a symbolic link stays and its target is
    /// replaced. The folder has to exist. Content and folder entry have reached the disk on return.
    /// Zorvik::Exception naming the file, the step that failed and the system's reason.
    static void Write(const QString& path, const QByteArray& content);
    static void Write(const QString& path, const void* content, std::size_t size);

    /// Makes the folder at `path` and its missing parents. Exception naming it.
    static void MakeFolder(const QString& path);
};

} // namespace LumetraHost
