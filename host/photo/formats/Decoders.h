// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/file/DecodedPhoto.h"
#include "photo/file/PhotoFormat.h"

#include <string>

namespace LumetraHost {

// Decoders of formats that take one function. `name` begins the text of every Zorvik::Exception.

/// Decodes the main picture of HEIC and AVIF files, upright as the file says: 8 bits to 8, more to
/// 16. Delivers EXIF, XMP and the colour profile; ours where the file only names Display P3.
DecodedPhoto DecodeHeif(const Bytes& content, const std::string& name);

/// Decodes PNG of every colour type and depth: up to 8 bits to 8, 16 bits to 16. Delivers the
/// colour profile and the EXIF chunk too. Damaged and incomplete files are refused; gamma and
/// chromaticity chunks without a profile are not looked at.
DecodedPhoto DecodePng(const Bytes& content, const std::string& name);

/// Decodes WebP, lossy and lossless, with alpha, colour profile, EXIF and XMP. Animations and
/// damaged or incomplete files are refused.
DecodedPhoto DecodeWebp(const Bytes& content, const std::string& name);

enum class RawSize
{
    Full,
    Half ///< each 2 x 2 sensor cells make one pixel: no interpolation, four times as fast
};

/// Develops the raw files of cameras: white balance as shot, sRGB with 16 bits, no automatic
/// brightening, so that the same file always gives the same picture. Which cameras are known is the
/// raw library's matter. Truncated files are refused; damage inside the data is told of.
DecodedPhoto DecodeRaw(const Bytes& content, const std::string& name, RawSize size);

} // namespace LumetraHost
