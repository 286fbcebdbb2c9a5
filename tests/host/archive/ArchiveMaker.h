// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>

#include <cstdint>
#include <vector>

namespace LumetraTest {

/// One entry of an archive, with whatever its headers claim.
struct ArchiveEntry
{
    QByteArray name;
    QByteArray content;               ///< as it is unpacked
    std::uint16_t flags = 0x0800;     ///< 1: encrypted, 0x0800: the name is UTF-8
    std::uint32_t unixMode = 0100644; ///< kind and permissions; 0: not of Unix
    bool isCompressed = false;
    std::int64_t claimedSize = -1;   ///< bytes that the headers announce; -1: the true ones
    std::uint32_t checksumError = 0; ///< is added to the checksum
};

/// Zip archives by hand, so that they can be wrong where no library would write it.
class ArchiveMaker
{
public:
    static QByteArray Make(const std::vector<ArchiveEntry>& entries);
};

} // namespace LumetraTest
