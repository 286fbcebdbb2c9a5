// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/file/PhotoFormat.h"

#include <cstdint>

namespace LumetraHost {

class PhotoFile;

/// What the beginning of a photo's file tells before the rest of it is read. Nothing is relied on
/// but for memory: the decoders look for themselves.
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
