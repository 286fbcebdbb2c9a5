// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/PhotoReader.h"

#include "image/ImageOrientation.h"
#include "photo/colour/ColorConversion.h"
#include "photo/file/Decoders.h"
#include "photo/file/PhotoFile.h"
#include "photo/file/PhotoHead.h"
#include "photo/file/PhotoLimits.h"
#include "photo/jpeg/JpegRowReader.h"
#include "photo/metadata/MetadataReader.h"
#include "photo/metadata/MetadataWriter.h"

#include "storage/ContentHash.h"
#include "storage/FailWith.h"

#include <algorithm>
#include <new>
#include <optional>
#include <utility>

namespace LumetraHost {
namespace {

/// Half the size of any camera of this century is enough for a screen.
RawSize ChooseRawSize(int smallestSide)
{
    constexpr int smallestHalf = 1500;
    return smallestSide > 0 && smallestSide <= smallestHalf ? RawSize::Half : RawSize::Full;
}

/// Decodes a picture of at least `smallestSide` pixels; 0: at full size.
DecodedPhoto DecodePixels(const Bytes& content, const std::string& name, int smallestSide)
{
    switch (RequirePhotoFormat(content, name)) {
    case PhotoFormat::Jpeg:
        return DecodeJpeg(content, name, smallestSide);
    case PhotoFormat::Png:
        return DecodePng(content, name);
    case PhotoFormat::Tiff:
        return DecodeTiff(content, name);
    case PhotoFormat::Webp:
        return DecodeWebp(content, name);
    case PhotoFormat::Heif:
        return DecodeHeif(content, name);
    case PhotoFormat::Raw:
        return DecodeRaw(content, name, ChooseRawSize(smallestSide));
    }
    FailWith(name + ": unknown format");
}

/// Cameras that say Adobe RGB only in the EXIF block embed no profile.
void AddImpliedProfile(DecodedPhoto& decoded, const MetadataReader::Result& metadata)
{
    const bool colored = decoded.meaning == PixelMeaning::Rgb;
    if (decoded.iccProfile.isEmpty() && metadata.adobeRgb && colored)
        decoded.iccProfile = ColorConversion::GetAdobeRgbProfile();
}

Photo Finish(DecodedPhoto decoded, const Bytes& content)
{
    Photo photo;
    photo.warnings = std::move(decoded.warnings);
    MetadataReader::Result read =
        decoded.hasOwnMetadata
            ? MetadataReader::ReadBlocks(decoded.exif, decoded.xmp, photo.warnings)
            : MetadataReader::Read(content, decoded.exif, photo.warnings);
    AddImpliedProfile(decoded, read);
    read.metadata.iccProfile = ColorConversion::Settle(decoded, photo.warnings);
    photo.reductions = std::move(decoded.reductions);
    const int orientation = read.orientation != 0 ? read.orientation : decoded.orientation;
    photo.image = TurnUpright(decoded.pixels, decoded.isUpright ? 1 : orientation);
    photo.metadata =
        MetadataWriter::Normalise(read.metadata, photo.image.GetWidth(), photo.image.GetHeight(),
                                  !photo.image.GetSpace(), photo.warnings);
    return photo;
}

/// Rows that are decoded before they are turned and packed: enough that each of them becomes a
/// piece of some length where the picture is turned by a quarter.
constexpr int RowsToPack = 64;

/// Decodes and packs all rows, upright.
KeptImage PackRows(JpegRowReader& reader, int orientation,
                   const std::shared_ptr<const RgbSpace>& space)
{
    const int width = reader.GetWidth();
    const int height = reader.GetHeight();
    const auto place = FindUprightPlace(width, height, 0, height, orientation);
    KeptImage packed =
        KeptImage::AllocatePacked(place.width, place.height, Image::Depth::Bits8, space);
    Image rows;
    for (int y = 0; y < height; y += RowsToPack) {
        const int count = std::min(RowsToPack, height - y);
        if (rows.GetHeight() != count)
            rows = Image::AllocateUninitialised(width, count, Image::Depth::Bits8);
        reader.Read(rows, 0, count);
        const auto part = FindUprightPlace(width, height, y, count, orientation);
        packed.Store(TurnUpright(rows, orientation), part.x, part.y);
    }
    return packed;
}

/// Reads a JPEG file whose colours stay as they are; nothing for all others.
std::optional<KeptPhoto> ReadPackedJpeg(const Bytes& content, const std::string& name)
{
    if (RequirePhotoFormat(content, name) != PhotoFormat::Jpeg)
        return std::nullopt;
    JpegRowReader reader(content, name);
    DecodedPhoto decoded;
    decoded.meaning = reader.GetMeaning();
    decoded.iccProfile = reader.GetProfile();
    KeptPhoto photo;
    MetadataReader::Result read = MetadataReader::Read(content, {}, photo.warnings);
    AddImpliedProfile(decoded, read);
    const auto kept =
        ColorConversion::FindKept(decoded.meaning, decoded.iccProfile, Image::Depth::Bits8);
    if (reader.IsProfileDamaged() || !kept)
        return std::nullopt;
    read.metadata.iccProfile = decoded.iccProfile;
    photo.image = PackRows(reader, read.orientation, kept->space);
    photo.metadata =
        MetadataWriter::Normalise(read.metadata, photo.image.GetWidth(), photo.image.GetHeight(),
                                  !kept->space, photo.warnings);
    return photo;
}

KeptPhoto DecodeToKeep(const Bytes& content, const std::string& name)
{
    if (auto packed = ReadPackedJpeg(content, name))
        return *std::move(packed);
    Photo photo = PhotoReader::Decode(content, name);
    KeptImage image = KeptImage::Pack(std::exchange(photo.image, {}));
    return {std::move(photo), std::move(image)};
}

template <class Decoding>
auto ReadFile(const QString& path, const Decoding& decode)
{
    const std::string name = path.toStdString();
    try {
        return decode(PhotoReader::ReadContent(path), name);
    } catch (const std::bad_alloc&) {
        FailWith(name + ": " + PhotoLimits::OutOfMemory);
    }
}

} // namespace

Photo PhotoReader::Read(const QString& path)
{
    return ReadFile(path, [](const Bytes& content, const std::string& name) {
        Photo photo = Decode(content, name);
        photo.contentHash = ContentHash::Of(content.data(), content.size());
        return photo;
    });
}

KeptPhoto PhotoReader::ReadToKeep(const QString& path)
{
    return ReadFile(path, [](const Bytes& content, const std::string& name) {
        KeptPhoto photo = DecodeToKeep(content, name);
        photo.contentHash = ContentHash::Of(content.data(), content.size());
        return photo;
    });
}

Photo PhotoReader::ReadReduced(const QString& path, int smallestSide)
{
    return ReadFile(path, [smallestSide](const Bytes& content, const std::string& name) {
        return DecodeReduced(content, name, smallestSide);
    });
}

Photo PhotoReader::Decode(const Bytes& content, const std::string& name)
{
    return Finish(DecodePixels(content, name, 0), content);
}

Photo PhotoReader::DecodeReduced(const Bytes& content, const std::string& name, int smallestSide)
{
    return Finish(DecodePixels(content, name, std::max(1, smallestSide)), content);
}

Bytes PhotoReader::ReadContent(const QString& path)
{
    PhotoFile file(path);
    PhotoLimits::CheckFile(path.toStdString(), PhotoHead::Read(file), file.GetSize());
    return file.ReadAll();
}

} // namespace LumetraHost
