// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/file/RawSignature.h"

#include "photo/file/Magic.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <optional>
#include <string>

namespace LumetraHost {
namespace {

bool HasRawMagic(const Bytes& content)
{
    struct Magic
    {
        std::size_t position;
        const char* text;
    };
    constexpr Magic magics[] = {
        {0, "FUJIFILMCCD-RAW"}, {0, "IIRO"},    {0, "IIRS"}, {0, "IIU"}, {0, "MMOR"}, {0, "FOVb"},
        {6, "HEAPCCDR"},        {4, "ftypcrx "}};
    const bool isCr2 = HasAt(content, 0, std::string("II*\0", 4)) && HasAt(content, 8, "CR");
    return isCr2 || HasAt(content, 0, std::string("\0MRM", 4)) ||
           std::any_of(std::begin(magics), std::end(magics), [&](const Magic& magic) {
               return HasAt(content, magic.position, magic.text);
           });
}

/// The first directory of a file that is built like TIFF.
class Directory
{
public:
    explicit Directory(const Bytes& content) : m_content(content), m_isBig(content[0] == 'M')
    {
        m_position = Get(4, 4);
        m_count = Get(m_position, 2);
    }

    /// The value of a tag, or its offset where it has several.
    std::optional<std::uint32_t> Find(std::uint32_t tag) const
    {
        for (std::uint32_t i = 0; i < m_count; ++i) {
            const std::uint64_t entry = m_position + 2 + std::uint64_t{12} * i;
            if (Get(entry, 2) == tag)
                return Get(entry + 8, Get(entry + 2, 2) == ShortType ? 2 : 4);
        }
        return std::nullopt;
    }

private:
    static constexpr std::uint32_t ShortType = 3;

    /// The number of `size` bytes at `position`; 0 beyond the end.
    std::uint32_t Get(std::uint64_t position, int size) const
    {
        if (position + static_cast<std::uint64_t>(size) > m_content.size())
            return 0;
        std::uint32_t value = 0;
        for (int i = 0; i < size; ++i) {
            const int shift = 8 * (m_isBig ? size - 1 - i : i);
            value |= std::uint32_t{m_content[position + static_cast<std::uint64_t>(i)]} << shift;
        }
        return value;
    }

    const Bytes& m_content;
    bool m_isBig;
    std::uint64_t m_position = 0;
    std::uint32_t m_count = 0;
};

bool IsRawDirectory(const Bytes& content)
{
    const bool isTiff =
        HasAt(content, 0, std::string("II*\0", 4)) || HasAt(content, 0, std::string("MM\0*", 4));
    if (!isTiff || content.size() < 8)
        return false;
    constexpr std::uint32_t newSubfileType = 0xFE;
    constexpr std::uint32_t photometric = 0x106;
    constexpr std::uint32_t subDirectories = 0x14A;
    constexpr std::uint32_t dngVersion = 0xC612;
    constexpr std::uint32_t colourFilterArray = 32803;
    constexpr std::uint32_t linearRaw = 34892;
    const Directory directory(content);
    const auto kind = directory.Find(photometric);
    // Cameras put a small picture first and the sensor's data into a directory below it.
    const bool isPreview = directory.Find(newSubfileType).value_or(0) & 1;
    return directory.Find(dngVersion) || kind == colourFilterArray || kind == linearRaw ||
           (isPreview && directory.Find(subDirectories));
}

} // namespace

bool IsRawPhoto(const Bytes& content)
{
    return HasRawMagic(content) || IsRawDirectory(content);
}

} // namespace LumetraHost
