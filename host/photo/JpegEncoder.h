// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/Image.h"
#include "photo/PhotoFormat.h"

#include <QByteArray>

#include <string>

namespace LumetraHost {

/// Encodes sequential JPEG with 8 bits per channel, YCbCr, with Huffman tables made for the
/// picture. Alpha is composed over white. Metadata other than the colour profile is not its matter.
class JpegEncoder
{
public:
    /// From this quality up the colours are stored at full resolution (4:4:4), below at a quarter
    /// (4:2:0).
    static constexpr int FullColorQuality = 90;

    /// `quality` 1..100, `name` begins the text of every Zorvik::Exception.
    static Bytes Encode(const Image& image, int quality, const QByteArray& iccProfile,
                        const std::string& name);
};

} // namespace LumetraHost
