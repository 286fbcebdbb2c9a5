// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <cstdint>
#include <string>

namespace LumetraHost {

/// One file of a zip archive, as the archive's directory announces it.
struct ZipEntry
{
    QString name; ///< the path inside the archive, with "/" between folders
    std::uint64_t index = 0;
    std::uint64_t size = 0; ///< bytes once it is unpacked; archives may lie about it
    /// "expected …, found …" for an entry that is not unpacked; empty for one that may be.
    std::string fault;

    /// The part of the name after the last "/".
    QString GetFileName() const;
    /// True for the notes that a Mac puts beside each file, which no user knows of.
    bool IsFinderNote() const;

    /// The fault of a name: empty, longer than 1,000 characters, absolute, with "..", with control
    /// characters. Empty for a name that stays inside a folder.
    static std::string FindNameFault(const QString& name);
};

} // namespace LumetraHost
