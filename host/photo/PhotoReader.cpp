// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/PhotoReader.h"

#include "photo/ColorConversion.h"
#include "photo/HeifDecoder.h"
#include "photo/ImageOrientation.h"
#include "photo/JpegDecoder.h"
#include "photo/MetadataReader.h"
#include "photo/MetadataWriter.h"
#include "photo/PhotoLimits.h"
#include "photo/PngDecoder.h"
#include "photo/RawDecoder.h"
#include "photo/TiffDecoder.h"
#include "photo/WebpDecoder.h"

#include "Zorvik/Exception.h"

#include <QFile>
#include <QFileInfo>

#include <boost/current_function.hpp>

#include <algorithm>
#include <optional>

namespace LumetraHost {
namespace {

constexpr char KnownFormats[] = "a JPEG, PNG, TIFF, WebP, HEIC or raw picture";

[[noreturn]] void Fail(const std::string& name, const std::string& text)
{
    throw Zorvik::Exception(name + ": " + text, BOOST_CURRENT_FUNCTION, "photo/PhotoReader",
                            __LINE__);
}

/// Half the size of any camera of this century is enough for a screen.
RawDecoder::Size ChooseRawSize(int smallestSide)
{
    constexpr int smallestHalf = 1500;
    return smallestSide > 0 && smallestSide <= smallestHalf ? RawDecoder::Size::Half
                                                            : RawDecoder::Size::Full;
}

/// `smallestSide` 0: at full size.
DecodedPhoto DecodePixels(const Bytes& content, const std::string& name, int smallestSide)
{
    if (content.empty())
        Fail(name, "the file is empty: expected " + std::string(KnownFormats));
    const std::optional<PhotoFormat> format = DetectPhotoFormat(content);
    if (!format)
        Fail(name,
             "expected " + std::string(KnownFormats) + ", found " + DescribeOtherContent(content));
    switch (*format) {
    case PhotoFormat::Jpeg:
        return smallestSide > 0 ? JpegDecoder::DecodeScaled(content, name, smallestSide)
                                : JpegDecoder::Decode(content, name);
    case PhotoFormat::Png:
        return PngDecoder::Decode(content, name);
    case PhotoFormat::Tiff:
        return TiffDecoder::Decode(content, name);
    case PhotoFormat::Webp:
        return WebpDecoder::Decode(content, name);
    case PhotoFormat::Heif:
        return HeifDecoder::Decode(content, name);
    case PhotoFormat::Raw:
        return RawDecoder::Decode(content, name, ChooseRawSize(smallestSide));
    }
    Fail(name, "unknown format");
}

/// Cameras that say Adobe RGB only in the EXIF block embed no profile.
void AddImpliedProfile(DecodedPhoto& decoded, const MetadataReader::Result& metadata)
{
    const bool colored = decoded.meaning == PixelMeaning::Rgb;
    if (decoded.iccProfile.isEmpty() && metadata.adobeRgb && colored)
        decoded.iccProfile = ColorConversion::GetAdobeRgbProfile();
}

Photo Finish(DecodedPhoto decoded, const Bytes& content, const std::string& name)
{
    Photo photo;
    MetadataReader::Result read =
        decoded.hasOwnMetadata
            ? MetadataReader::ReadBlocks(decoded.exif, decoded.xmp, photo.warnings)
            : MetadataReader::Read(content, decoded.exif, photo.warnings);
    AddImpliedProfile(decoded, read);
    read.metadata.iccProfile = ColorConversion::ToSrgb(decoded, photo.warnings);
    const int orientation = read.orientation != 0 ? read.orientation : decoded.orientation;
    photo.image = TurnUpright(decoded.pixels, decoded.isUpright ? 1 : orientation);
    photo.metadata = MetadataWriter::NormaliseOrDrop(read.metadata, photo.image.GetWidth(),
                                                     photo.image.GetHeight(), name, photo.warnings);
    return photo;
}

} // namespace

Photo PhotoReader::Read(const QString& path)
{
    return Decode(ReadContent(path), path.toStdString());
}

Photo PhotoReader::Decode(const Bytes& content, const std::string& name)
{
    return Finish(DecodePixels(content, name, 0), content, name);
}

Photo PhotoReader::DecodeReduced(const Bytes& content, const std::string& name, int smallestSide)
{
    return Finish(DecodePixels(content, name, std::max(1, smallestSide)), content, name);
}

Bytes PhotoReader::ReadContent(const QString& path)
{
    const std::string name = path.toStdString();
    const QFileInfo info(path);
    if (!info.exists())
        Fail(name, "there is no such file");
    if (info.isDir())
        Fail(name, "expected a photo, found a folder");
    if (!info.isFile())
        Fail(name, "expected a regular file, found a device or a pipe");
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        Fail(name, "the file cannot be opened: " + file.errorString().toStdString());
    const qint64 size = file.size();
    if (static_cast<std::uint64_t>(size) > PhotoLimits::LargestFile)
        Fail(name, "expected a file of at most 4 GB, found " + std::to_string(size) + " bytes");
    Bytes content(static_cast<std::size_t>(size));
    if (file.read(reinterpret_cast<char*>(content.data()), size) != size)
        Fail(name, "the file cannot be read: " + file.errorString().toStdString());
    return content;
}

} // namespace LumetraHost
