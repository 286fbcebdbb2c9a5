// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/file/PhotoHead.h"

#include "photo/file/PhotoFile.h"

#include <QtEndian>

#include <algorithm>

#include <webp/decode.h>

namespace LumetraHost {
namespace {

constexpr std::size_t StartSize = 1 << 16;     // bytes
constexpr std::size_t HeifStartSize = 1 << 20; // its boxes of all tiles come first
constexpr int MostSegments = 10'000;
constexpr int MostSubDirectories = 8;

void TakeLarger(PhotoHead& head, std::uint64_t width, std::uint64_t height)
{
    if (width * height > head.width * head.height) {
        head.width = width;
        head.height = height;
    }
}

/// True for SOF0 to SOF15, the markers of frame headers, but for the three among them that are not.
bool IsFrame(int marker)
{
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

/// Walks from segment to segment, since those before the frame may take megabytes.
void ReadJpeg(PhotoFile& file, PhotoHead& head)
{
    constexpr std::size_t frameSize = 9; // marker, length, depth, height, width
    std::uint64_t position = 2;
    for (int i = 0; i < MostSegments; ++i) {
        const Bytes segment = file.ReadPart(position, frameSize);
        if (segment.size() < frameSize || segment[0] != 0xFF)
            return;
        if (IsFrame(segment[1]))
            return TakeLarger(head, qFromBigEndian<quint16>(segment.data() + 7),
                              qFromBigEndian<quint16>(segment.data() + 5));
        position += segment[1] == 0xFF ? 1u : 2u + qFromBigEndian<quint16>(segment.data() + 2);
    }
}

void ReadPng(const Bytes& start, PhotoHead& head)
{
    constexpr std::size_t depthPosition = 24;
    if (start.size() <= depthPosition)
        return;
    TakeLarger(head, qFromBigEndian<quint32>(start.data() + 16),
               qFromBigEndian<quint32>(start.data() + 20));
    head.is16Bit = start[depthPosition] == 16;
}

void ReadWebp(const Bytes& start, PhotoHead& head)
{
    int width = 0;
    int height = 0;
    if (WebPGetInfo(start.data(), start.size(), &width, &height))
        TakeLarger(head, static_cast<std::uint64_t>(width), static_cast<std::uint64_t>(height));
}

/// Takes the largest of the pictures: tiles and thumbnails are described in the same way.
void ReadHeif(const Bytes& start, PhotoHead& head)
{
    constexpr std::ptrdiff_t boxSize = 16;
    const std::string box = "ispe";
    for (auto found = std::search(start.begin(), start.end(), box.begin(), box.end());
         start.end() - found >= boxSize;
         found = std::search(found + 1, start.end(), box.begin(), box.end()))
        TakeLarger(head, qFromBigEndian<quint32>(&*found + 8),
                   qFromBigEndian<quint32>(&*found + 12));
}

/// Looks into the first directory of a TIFF file and those below it, where raw files keep the
/// sensor's picture.
class TiffHead
{
public:
    TiffHead(PhotoFile& file, bool isBigEndian) : m_file(file), m_isBigEndian(isBigEndian) {}

    void ReadDirectory(std::uint32_t position, bool isFirst, PhotoHead& head);

private:
    static constexpr std::size_t EntrySize = 12;

    std::uint32_t GetShort(const Bytes& bytes, std::size_t at) const
    {
        return m_isBigEndian ? qFromBigEndian<quint16>(bytes.data() + at)
                             : qFromLittleEndian<quint16>(bytes.data() + at);
    }
    std::uint32_t GetLong(const Bytes& bytes, std::size_t at) const
    {
        return m_isBigEndian ? qFromBigEndian<quint32>(bytes.data() + at)
                             : qFromLittleEndian<quint32>(bytes.data() + at);
    }
    std::uint32_t GetValue(const Bytes& entries, std::size_t at) const;
    void ReadSubDirectories(std::uint32_t count, std::uint32_t value, PhotoHead& head);

    PhotoFile& m_file;
    const bool m_isBigEndian;
};

std::uint32_t TiffHead::GetValue(const Bytes& entries, std::size_t at) const
{
    constexpr std::uint32_t shortType = 3;
    return GetShort(entries, at + 2) == shortType ? GetShort(entries, at + 8)
                                                  : GetLong(entries, at + 8);
}

void TiffHead::ReadDirectory(std::uint32_t position, bool isFirst, PhotoHead& head)
{
    constexpr std::uint32_t widthTag = 0x100;
    constexpr std::uint32_t heightTag = 0x101;
    constexpr std::uint32_t subDirectoriesTag = 0x14A;
    const Bytes count = m_file.ReadPart(position, 2);
    if (count.size() < 2)
        return;
    const Bytes entries =
        m_file.ReadPart(std::uint64_t{position} + 2, EntrySize * GetShort(count, 0));
    std::uint64_t width = 0;
    std::uint64_t height = 0;
    for (std::size_t at = 0; at + EntrySize <= entries.size(); at += EntrySize) {
        const std::uint32_t tag = GetShort(entries, at);
        if (tag == widthTag)
            width = GetValue(entries, at);
        else if (tag == heightTag)
            height = GetValue(entries, at);
        else if (tag == subDirectoriesTag && isFirst)
            ReadSubDirectories(GetLong(entries, at + 4), GetLong(entries, at + 8), head);
    }
    TakeLarger(head, width, height);
}

/// Follows the positions of sub-directories: one stands in the entry itself, several elsewhere.
void TiffHead::ReadSubDirectories(std::uint32_t count, std::uint32_t value, PhotoHead& head)
{
    if (count == 1)
        return ReadDirectory(value, false, head);
    const Bytes positions =
        m_file.ReadPart(value, std::size_t{4} * std::min<std::uint32_t>(count, MostSubDirectories));
    for (std::size_t at = 0; at + 4 <= positions.size(); at += 4)
        ReadDirectory(GetLong(positions, at), false, head);
}

void ReadTiff(PhotoFile& file, const Bytes& start, PhotoHead& head)
{
    const std::string magic(
        start.begin(), start.begin() + std::min<std::ptrdiff_t>(4, start.end() - start.begin()));
    const bool isBigEndian = magic == std::string("MM\0*", 4);
    head.isClassicTiff = isBigEndian || magic == std::string("II*\0", 4);
    if (!head.isClassicTiff || start.size() < 8)
        return;
    const std::uint32_t position = isBigEndian ? qFromBigEndian<quint32>(start.data() + 4)
                                               : qFromLittleEndian<quint32>(start.data() + 4);
    TiffHead(file, isBigEndian).ReadDirectory(position, true, head);
}

} // namespace

PhotoHead PhotoHead::Read(PhotoFile& file)
{
    const Bytes start = file.ReadPart(0, StartSize);
    PhotoHead head;
    head.format = RequirePhotoFormat(start, file.GetName());
    head.is16Bit = head.format != PhotoFormat::Jpeg && head.format != PhotoFormat::Webp;
    switch (head.format) {
    case PhotoFormat::Jpeg:
        ReadJpeg(file, head);
        break;
    case PhotoFormat::Png:
        ReadPng(start, head);
        break;
    case PhotoFormat::Webp:
        ReadWebp(start, head);
        break;
    case PhotoFormat::Heif:
        ReadHeif(file.ReadPart(0, HeifStartSize), head);
        break;
    case PhotoFormat::Tiff:
    case PhotoFormat::Raw:
        ReadTiff(file, start, head);
        break;
    }
    return head;
}

} // namespace LumetraHost
