// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "storage/FileIdentity.h"

#include <QString>

#include <cstddef>
#include <map>
#include <optional>
#include <vector>

namespace LumetraHost {

/// Finds photos of a batch that are the outputs of other photos of it.
class ResultSearch
{
public:
    /// Adds the photo with this number; each number once.
    void AddPhoto(std::size_t number, const QString& path);
    /// Adds a file that is to be made of the photo with this number.
    void AddOutput(std::size_t number, const QString& output);

    /// The photo whose output this one is; nothing for a photo that is none of an other one's, and
    /// for photos that are each other's outputs in a circle, of which nobody can tell the first.
    std::optional<std::size_t> FindOrigin(std::size_t number) const;

private:
    std::optional<std::size_t> FindParent(std::size_t number) const;

    std::map<std::size_t, FileIdentity> m_photos;
    std::map<FileIdentity, std::size_t> m_origins; ///< of outputs
};

} // namespace LumetraHost
