// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <cstdint>

namespace LumetraHost {

struct ExportRecipe;

/// How much memory the export of a photo takes, told from the head of its file and the depth of the
/// new one.
class ExportMemory
{
public:
    /// Bytes, rather too many than too few: as if the photo had to be read whole. 0 for a file
    /// that cannot be looked at, whose export fails. Usable from any thread.
    static std::uint64_t Estimate(const QString& photo, const ExportRecipe& recipe);
};

} // namespace LumetraHost
