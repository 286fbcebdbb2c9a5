// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/RgbSpace.h"

#include <optional>
#include <string>

namespace LumetraHost {

/// Reads parts of an ICC profile, which is given as a handle of the colour library.
class ProfileParts
{
public:
    /// The profile's own description in English; empty where it has none.
    static std::string GetName(void* profile);

    /// True for profiles that go by curves and a matrix and have no tables.
    static bool IsMatrixProfile(void* profile);

    /// From the profile's linear light to that of sRGB, by way of the connection space. Empty for
    /// profiles without primaries.
    static std::optional<RgbSpace::Matrix> GetToSrgb(void* profile);
};

} // namespace LumetraHost
