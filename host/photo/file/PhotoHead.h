// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/file/PhotoFormat.h"

#include <cstdint>

namespace LumetraHost {

class PhotoFile;

/// Facts about a photo from the beginning of its file, before the rest of it is read. Only
/// estimates of memory rely on them: the decoders look for themselves.
struct PhotoHead
{
    PhotoFormat format = PhotoFormat::Jpeg;
    /// Pixels of the largest picture; 0 where the beginning does not say.
    std::uint64_t width = 0;
    std::uint64_t height = 0;
    bool is16Bit = false;       ///< or may be, where the beginning does not say
    bool isClassicTiff = false; ///< raw files too: one whose directory is looked at

    /// Reads a megabyte of the file at most. Zorvik::Exception when it announces no photo.
    static PhotoHead Read(PhotoFile& file);
};

} // namespace LumetraHost
