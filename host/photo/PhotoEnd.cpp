// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/PhotoEnd.h"

#include "photo/tiff/TiffStream.h"

#include "Zorvik/Exception.h"

#include <algorithm>
#include <cstddef>
#include <initializer_list>

#include <tiffio.h>

namespace LumetraHost {
namespace {

bool EndsWith(const Bytes& file, std::initializer_list<std::uint8_t> end)
{
    return file.size() >= end.size() &&
           std::equal(end.begin(), end.end(), file.end() - static_cast<std::ptrdiff_t>(end.size()));
}

/// The number of four bytes behind "RIFF" counts those that follow it.
bool IsWholeRiff(const Bytes& file)
{
    constexpr std::size_t headSize = 8;
    if (file.size() < headSize)
        return false;
    const std::uint64_t rest =
        file[4] | file[5] << 8 | file[6] << 16 | std::uint64_t(file[7]) << 24;
    return file.size() >= headSize + rest;
}

bool IsWholeTiff(const Bytes& file)
{
    try {
        const TiffStream stream(file, {});
        TIFF* const tiff = stream.Get();
        const std::uint32_t count =
            TIFFIsTiled(tiff) ? TIFFNumberOfTiles(tiff) : TIFFNumberOfStrips(tiff);
        for (std::uint32_t i = 0; i < count; ++i) {
            const std::uint64_t size = TIFFGetStrileByteCount(tiff, i);
            const std::uint64_t begin = TIFFGetStrileOffset(tiff, i);
            if (size == 0 || size > file.size() || begin > file.size() - size)
                return false;
        }
        return count > 0;
    } catch (const Zorvik::Exception&) {
        return false;
    }
}

} // namespace

bool HasPhotoEnd(const Bytes& file)
{
    const auto format = DetectPhotoFormat(file);
    if (format == PhotoFormat::Jpeg)
        return EndsWith(file, {0xff, 0xd9});
    if (format == PhotoFormat::Png)
        return EndsWith(file, {0, 0, 0, 0, 'I', 'E', 'N', 'D', 0xae, 0x42, 0x60, 0x82});
    if (format == PhotoFormat::Webp)
        return IsWholeRiff(file);
    return format == PhotoFormat::Tiff && IsWholeTiff(file);
}

} // namespace LumetraHost
