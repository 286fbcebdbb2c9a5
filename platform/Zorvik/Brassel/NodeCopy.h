// SPDX-License-Identifier: MIT
#pragma once

#include "Zorvik/Brassel/ISerializer.h"
#include "ZorvikPlatformExport.h"

#include <string>

namespace Zorvik::Brassel {

/// Copies between stored forms of any kind. Whole numbers stay whole. Exception when the target
/// refuses what it is given.
class ZORVIKPLATFORM_EXPORT NodeCopy
{
public:
    /// Writes everything that stands in `from` into `to`.
    static void CopyAll(const ISerializer& from, ISerializer& to);
    /// Writes what stands under `key`; nothing when nothing does.
    static void CopyEntry(const ISerializer& from, const std::string& key, ISerializer& to);
};

} // namespace Zorvik::Brassel
