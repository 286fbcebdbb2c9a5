// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/file/PhotoFormat.h"

#include <algorithm>
#include <string>

namespace LumetraHost {

/// True where the bytes at `position` are those of `magic`; false where the content ends before.
inline bool HasAt(const Bytes& content, std::size_t position, const std::string& magic)
{
    return content.size() >= position + magic.size() &&
           std::equal(magic.begin(), magic.end(),
                      content.begin() + static_cast<std::ptrdiff_t>(position),
                      [](char a, std::uint8_t b) { return static_cast<std::uint8_t>(a) == b; });
}

} // namespace LumetraHost
