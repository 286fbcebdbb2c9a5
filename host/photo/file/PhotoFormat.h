// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace LumetraHost {

/// An encoded file in memory.
using Bytes = std::vector<std::uint8_t>;

/// The formats that are read. Some are written too, see WrittenFormat.
enum class PhotoFormat
{
    Jpeg,
    Png,
    Tiff,
    Webp,
    Heif, ///< HEIC and AVIF
    Raw   ///< of any camera, DNG included
};

/// The format that the first bytes of a file announce; nothing for any other kind of file.
std::optional<PhotoFormat> DetectPhotoFormat(const Bytes& content);
/// The format, as DetectPhotoFormat() finds it. Zorvik::Exception that tells what was found for an
/// empty file and any other kind.
PhotoFormat RequirePhotoFormat(const Bytes& content, const std::string& name);
/// Describes content that is no photo, in words for a message: "a GIF picture", "other content".
std::string DescribeOtherContent(const Bytes& content);
/// The format that the name of a file to be written asks for by its extension (jpg, jpeg, jpe, png,
/// tif, tiff, webp, in upper or lower case); nothing for any other.
std::optional<PhotoFormat> GetPhotoFormatOfName(const QString& path);

} // namespace LumetraHost
