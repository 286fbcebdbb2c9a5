// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

namespace LumetraHost {

/// An encoded file in memory.
using Bytes = std::vector<std::uint8_t>;

enum class PhotoFormat
{
    Jpeg,
    Png,
    Tiff
};

/// The format that the first bytes of a file announce; nothing for any other kind of file.
std::optional<PhotoFormat> DetectPhotoFormat(const Bytes& content);
/// The format that a file name asks for by its extension (jpg, jpeg, jpe, png, tif, tiff, in upper
/// or lower case); nothing for any other.
std::optional<PhotoFormat> GetPhotoFormatOfName(const QString& path);

} // namespace LumetraHost
