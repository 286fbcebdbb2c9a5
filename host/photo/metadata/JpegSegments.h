// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/file/PhotoFormat.h"

#include <QByteArray>

#include <vector>

namespace LumetraHost {

/// A segment of a JPEG file.
struct JpegSegment
{
    static constexpr int LargestContent = 65533; ///< bytes
    static constexpr int App1 = 0xE1;            ///< EXIF and XMP
    static constexpr int App13 = 0xED;           ///< IPTC

    int marker = 0; ///< 0xE0 for APP0, ...
    QByteArray content;
};

/// The segments in front of the picture data, in their order. They end where the file stops being
/// well-formed. The contents refer to `jpeg` and are valid as long as it is.
std::vector<JpegSegment> FindJpegSegments(const Bytes& jpeg);

} // namespace LumetraHost
