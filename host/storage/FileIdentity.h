// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>

#include <cstdint>

class QString;

namespace LumetraHost {

/// Tells whether two paths lead to one file, whatever they look like: relative, with "..", through
/// symbolic or hard links, or in another case where the file system does not care.
/// A file that is there is known by its device and inode. A file that is yet to be written is known
/// by its folder and its name, behind a link whose target is missing too; the case of such a name
/// counts. An identity says what was true when it was made: files come and go.
class FileIdentity
{
public:
    /// Looks at the file system. An empty path is equal to empty paths only.
    static FileIdentity Of(const QString& path);

    friend bool operator==(const FileIdentity& first, const FileIdentity& second);
    /// An order for maps and sets, without a meaning of its own.
    friend bool operator<(const FileIdentity& first, const FileIdentity& second);

private:
    std::uint64_t m_device = 0;
    std::uint64_t m_inode = 0; ///< of the folder where m_name says the rest
    QByteArray m_name;         ///< of what is missing; the whole path where its folder is missing
};

} // namespace LumetraHost
