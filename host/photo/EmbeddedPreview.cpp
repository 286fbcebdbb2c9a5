// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/EmbeddedPreview.h"

#include "image/ImageOrientation.h"
#include "image/Resize.h"
#include "photo/colour/ColorConversion.h"
#include "photo/file/Decoders.h"
#include "photo/file/PhotoFile.h"
#include "photo/file/PhotoHead.h"
#include "photo/file/PhotoLimits.h"
#include "photo/metadata/MetadataTags.h"

#include <exiv2/exiv2.hpp>

#include <algorithm>
#include <cmath>
#include <exception>
#include <utility>

namespace LumetraHost {
namespace {

/// The segments in front of a JPEG picture: an EXIF block and a profile of at most some 64 KB each,
/// XMP, and what makers add.
constexpr std::size_t JpegStartSize = 512 * 1024; // bytes

/// The part of a file in which previews are looked for; empty for formats without any.
Bytes ReadStart(const QString& path, PhotoHead& head)
{
    PhotoFile file(path);
    head = PhotoHead::Read(file);
    if (head.format == PhotoFormat::Jpeg)
        return file.ReadPart(0, JpegStartSize);
    if (head.format != PhotoFormat::Raw)
        return {};
    PhotoLimits::CheckFile(file.GetName(), head, file.GetSize());
    return file.ReadAll();
}

/// Copies the smallest preview that is large enough; empty when there is none.
Bytes FindPreview(const Exiv2::Image& file, int smallestSide)
{
    const Exiv2::PreviewManager manager(file);
    for (const auto& preview : manager.getPreviewProperties()) { // the smallest first
        const auto longest = static_cast<int>(std::max(preview.width_, preview.height_));
        if (longest < smallestSide || preview.mimeType_ != "image/jpeg")
            continue;
        const Exiv2::PreviewImage image = manager.getPreviewImage(preview);
        return Bytes(image.pData(), image.pData() + image.size());
    }
    return {};
}

/// Cuts off the bars that fill up a preview of another shape than the photo.
Image CutBars(const Image& preview, int photoWidth, int photoHeight)
{
    const int width = preview.GetWidth();
    const int height = preview.GetHeight();
    if (photoWidth < 1 || photoHeight < 1)
        return preview;
    const double scale = std::min(double(width) / photoWidth, double(height) / photoHeight);
    // A pixel more on either side is the rounding of whoever has shrunk the photo.
    const auto fit = [scale](int photo, int most) {
        const int side = static_cast<int>(std::lround(photo * scale));
        return most - side <= 2 ? most : std::max(1, side);
    };
    const PixelRect part{(width - fit(photoWidth, width)) / 2,
                         (height - fit(photoHeight, height)) / 2, fit(photoWidth, width),
                         fit(photoHeight, height)};
    if (part.width == width && part.height == height)
        return preview;
    return Resize(preview, part, part.width, part.height, ResizeQuality::Fine);
}

/// The profile of a preview is that of the photo where it has none of its own.
void AddProfile(DecodedPhoto& preview, Exiv2::Image& file)
{
    if (!preview.iccProfile.isEmpty() || preview.meaning != PixelMeaning::Rgb)
        return;
    const Exiv2::DataBuf* const profile = file.iccProfile();
    if (profile && profile->size_ > 0)
        preview.iccProfile = QByteArray(reinterpret_cast<const char*>(profile->pData_),
                                        static_cast<int>(profile->size_));
    else if (MetadataTags::SaysAdobeRgb(file.exifData()))
        preview.iccProfile = ColorConversion::GetAdobeRgbProfile();
}

std::optional<EmbeddedPreview> Decode(const Bytes& start, const PhotoHead& head,
                                      const std::string& name, int smallestSide)
{
    const auto file = Exiv2::ImageFactory::open(start.data(), static_cast<long>(start.size()));
    {
        const auto lock = MetadataTags::LockXmp();
        file->readMetadata();
    }
    const Bytes content = FindPreview(*file, smallestSide);
    if (content.empty())
        return std::nullopt;
    DecodedPhoto decoded = DecodeJpeg(content, name, smallestSide);
    AddProfile(decoded, *file);
    Warnings warnings; // opening the photo tells of damage
    ColorConversion::Settle(decoded, warnings);
    const bool isJpeg = head.format == PhotoFormat::Jpeg;
    const Image picture = isJpeg ? CutBars(decoded.pixels, static_cast<int>(head.width),
                                           static_cast<int>(head.height))
                                 : decoded.pixels;
    EmbeddedPreview preview;
    const int orientation = MetadataTags::GetOrientation(file->exifData());
    preview.image = TurnUpright(picture, orientation);
    preview.photoWidth = preview.image.GetWidth();
    preview.photoHeight = preview.image.GetHeight();
    if (isJpeg && head.width > 0 && head.height > 0) {
        preview.photoWidth = static_cast<int>(head.width);
        preview.photoHeight = static_cast<int>(head.height);
        if (orientation > 4) // turned by a quarter
            std::swap(preview.photoWidth, preview.photoHeight);
    }
    return preview;
}

} // namespace

std::optional<EmbeddedPreview> EmbeddedPreview::Read(const QString& path, int smallestSide)
{
    MetadataTags::Initialise();
    try {
        PhotoHead head;
        const Bytes start = ReadStart(path, head);
        if (start.empty())
            return std::nullopt;
        return Decode(start, head, path.toStdString(), smallestSide);
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

} // namespace LumetraHost
