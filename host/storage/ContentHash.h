// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

class QString;

namespace LumetraHost {

/// SHA-256 of contents, as 64 hexadecimal digits in lower case. Uses the processor's own
/// instructions where it has them: whole photos are hashed in a few milliseconds.
struct ContentHash
{
    static std::string Of(const void* content, std::size_t size);
    static std::string Of(std::string_view text) { return Of(text.data(), text.size()); }
    /// The hash of a plain file, read in parts; empty when it is none, or cannot be read.
    static std::string OfFile(const QString& path);
};

} // namespace LumetraHost
