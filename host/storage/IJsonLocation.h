// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <memory>
#include <string>

namespace LumetraHost {

class ContentFolder;

/// Tells where a node stands when somebody asks, so that nodes without a mistake cost no text.
/// Shared by the serializers over it; it must not change.
class IJsonLocation
{
public:
    virtual ~IJsonLocation() = default;

    virtual std::string GetFile() const = 0;
    /// The path with the file in front: "file/groups[0]/settings".
    virtual std::string GetFullPath() const = 0;
    /// The folder with the contents that the file names by their hash; null for a file that must
    /// hold everything itself.
    virtual std::shared_ptr<const ContentFolder> GetContents() const { return nullptr; }
};

} // namespace LumetraHost
