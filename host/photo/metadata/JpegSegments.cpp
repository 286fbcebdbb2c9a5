// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/metadata/JpegSegments.h"

namespace LumetraHost {
namespace {

constexpr int StartOfScan = 0xDA;
constexpr int EndOfImage = 0xD9;

/// True for markers that no length follows.
bool StandsAlone(int marker)
{
    return marker == 0x01 || (marker >= 0xD0 && marker <= 0xD8);
}

} // namespace

std::vector<JpegSegment> FindJpegSegments(const Bytes& jpeg)
{
    std::vector<JpegSegment> segments;
    std::size_t position = 2;
    while (position + 4 <= jpeg.size() && jpeg[position] == 0xFF) {
        const int marker = jpeg[position + 1];
        if (marker == StartOfScan || marker == EndOfImage)
            break;
        if (marker == 0xFF || StandsAlone(marker)) { // 0xFF again fills the space between segments
            position += marker == 0xFF ? 1 : 2;
            continue;
        }
        const std::size_t size = jpeg[position + 2] * 256u + jpeg[position + 3];
        if (size < 2 || position + 2 + size > jpeg.size())
            break;
        const auto* const content = reinterpret_cast<const char*>(jpeg.data() + position + 4);
        segments.push_back({marker, QByteArray::fromRawData(content, static_cast<int>(size) - 2)});
        position += 2 + size;
    }
    return segments;
}

} // namespace LumetraHost
