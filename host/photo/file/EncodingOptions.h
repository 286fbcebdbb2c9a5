// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <functional>

namespace LumetraHost {

/// Resolution at which a JPEG file stores colours, beside that of the brightness.
enum class ChromaSampling
{
    Automatic, ///< Full from JpegEncoder::FullColorQuality on, else Quarter
    Full,      ///< 4:4:4
    Half,      ///< 4:2:2, half the columns
    Quarter    ///< 4:2:0, half the columns and rows
};

/// Ways to store the pixels of a TIFF file, none of which loses anything. The compressed ones work
/// on the differences of neighbours (horizontal predictor).
enum class TiffCompression
{
    None,
    Lzw,
    Deflate
};

/// Choices that each format leaves to the user. A format passes over those of the others.
struct EncodingOptions
{
    static constexpr int DefaultQuality = 92;

    int quality = DefaultQuality; ///< 1 to 100, for JPEG and lossy WebP, each on a scale of its own
    ChromaSampling sampling = ChromaSampling::Automatic;    ///< JPEG
    bool isProgressive = false;                             ///< JPEG: coarse first, then finer
    bool isLossless = false;                                ///< WebP: every pixel as it is
    TiffCompression compression = TiffCompression::Deflate; ///< TIFF
};

/// Asked now and then while a picture is encoded as a whole, with the percent done. False ends the
/// encoding, which then makes no file.
using GoesOn = std::function<bool(int percent)>;

} // namespace LumetraHost
