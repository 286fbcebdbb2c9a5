// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/Image.h"
#include "photo/PhotoMetadata.h"

#include <string>
#include <vector>

namespace LumetraHost {

/// A photo as the editor works on it: upright sRGB pixels and the metadata of its file.
struct Photo
{
    Image image;
    PhotoMetadata metadata;
    /// What could not be read although the pixels are good, a sentence each: damaged metadata, a
    /// colour profile that does not fit.
    std::vector<std::string> warnings;
};

} // namespace LumetraHost
