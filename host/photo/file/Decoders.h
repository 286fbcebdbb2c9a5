// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/file/DecodedPhoto.h"
#include "photo/file/PhotoFormat.h"

#include <string>

namespace LumetraHost {

// The decoders of all formats. `name` begins the text of every Zorvik::Exception.

/// Decodes the main picture of HEIC and AVIF files, upright as the file says: 8 bits to 8, more to
/// 16. Delivers EXIF, XMP and the colour profile; ours where the file only names Display P3.
DecodedPhoto DecodeHeif(const Bytes& content, const std::string& name);

/// Decodes JPEG with 8 bits per channel: grey, YCbCr, RGB, CMYK and YCCK, sequential and
/// progressive. Lossless and 12-bit files are refused, and so are files of which data is missing or
/// damaged: a photo is opened whole or not at all. `smallestSide`: decodes at 1/2, 1/4 or 1/8 of
/// the size, see JpegRowReader::ScaleDown(); 0: at full size.
DecodedPhoto DecodeJpeg(const Bytes& content, const std::string& name, int smallestSide = 0);

/// Decodes PNG of every colour type and depth: up to 8 bits to 8, 16 bits to 16. Delivers the
/// colour profile and the EXIF chunk too. Damaged and incomplete files are refused; gamma and
/// chromaticity chunks without a profile are not looked at.
DecodedPhoto DecodePng(const Bytes& content, const std::string& name);

/// Decodes the first picture of a TIFF file: grey, RGB and CMYK of 8 and 16 bits in strips or
/// tiles, in one plane or several; palettes, bitmaps and the other 8-bit kinds through the codec
/// library's own conversion. Floating-point and 32-bit samples are refused, and so are files of
/// which data is missing or damaged.
DecodedPhoto DecodeTiff(const Bytes& content, const std::string& name);

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
