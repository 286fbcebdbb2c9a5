// SPDX-License-Identifier: GPL-2.0-or-later
#include "exporting/ExportMemory.h"

#include "exporting/ExportRecipe.h"
#include "photo/file/PhotoFile.h"
#include "photo/file/PhotoHead.h"
#include "photo/file/PhotoLimits.h"

#include "Zorvik/Exception.h"

#include <algorithm>

namespace LumetraHost {
namespace {

/// Bytes for the decoded picture, the one that is turned upright, and the encoded file with its
/// metadata, which takes another copy.
constexpr std::uint64_t BytesPerPixel8 = 12;
/// Bytes when either of the files has 16 bits. Raw files take as many while they are developed.
constexpr std::uint64_t BytesPerPixel16 = 24;
/// Bytes for the tables of the look and the codecs' own buffers.
constexpr std::uint64_t BytesPerPhoto = 16 << 20;
/// Compressed files hold seldom less than a byte of a pixel, which is all that is known of files
/// that do not say their size in front.
constexpr std::uint64_t PixelsPerByte = 1;

/// Bytes that a pixel of the new file takes besides, in its codec and where files are large,
/// measured with noise, which no codec makes small. Progressive JPEG keeps the coefficients of all
/// rows. WebP keeps the picture, and lossless WebP a place of repetition for each pixel too.
std::uint64_t GetBytesOfCodec(const ExportRecipe& recipe)
{
    constexpr std::uint64_t lossless = 4;
    constexpr std::uint64_t progressiveJpeg = 6;
    constexpr std::uint64_t lossyWebp = 22;
    constexpr std::uint64_t losslessWebp = 28;
    if (recipe.format == PhotoFormat::Webp)
        return recipe.encoding.isLossless ? losslessWebp : lossyWebp;
    if (recipe.format == PhotoFormat::Jpeg)
        return recipe.encoding.isProgressive ? progressiveJpeg : 0;
    return lossless;
}

/// Pixels of the new file.
std::uint64_t CountResult(const PhotoHead& head, std::uint64_t pixels, const ExportRecipe& recipe)
{
    constexpr auto longest = static_cast<std::uint64_t>(ExportRecipe::LargestSide);
    if (head.width == 0 || std::max(head.width, head.height) > longest)
        return pixels;
    const auto size = recipe.GetSize(static_cast<int>(head.width), static_cast<int>(head.height));
    return static_cast<std::uint64_t>(size.width) * static_cast<std::uint64_t>(size.height);
}

std::uint64_t CountPixels(const PhotoHead& head, std::uint64_t fileSize)
{
    const std::uint64_t pixels =
        head.width != 0 ? head.width * head.height : PixelsPerByte * fileSize;
    return std::min(pixels, PhotoLimits::LargestArea);
}

} // namespace

std::uint64_t ExportMemory::Estimate(const QString& photo, const ExportRecipe& recipe)
{
    try {
        PhotoFile file(photo);
        const PhotoHead head = PhotoHead::Read(file);
        const bool is16Bit =
            head.is16Bit || recipe.GetDepth(Image::Depth::Bits8) == Image::Depth::Bits16;
        const std::uint64_t pixels = CountPixels(head, file.GetSize());
        return file.GetSize() + BytesPerPhoto +
               (is16Bit ? BytesPerPixel16 : BytesPerPixel8) * pixels +
               GetBytesOfCodec(recipe) * CountResult(head, pixels, recipe);
    } catch (const Zorvik::Exception&) {
        return 0;
    }
}

} // namespace LumetraHost
