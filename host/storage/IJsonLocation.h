// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>

namespace LumetraHost {

/// Tells where a node stands when somebody asks, so that nodes without a mistake cost no text.
/// Shared by the serializers over it; it must not change.
class IJsonLocation
{
public:
    virtual ~IJsonLocation() = default;

    virtual std::string GetFile() const = 0;
    /// With the file in front: "file/groups[0]/settings".
    virtual std::string GetFullPath() const = 0;
};

} // namespace LumetraHost
