// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/PhotoReader.h"

#include "photo/ColorConversion.h"
#include "photo/ImageOrientation.h"
#include "photo/JpegDecoder.h"
#include "photo/MetadataReader.h"
#include "photo/MetadataWriter.h"
#include "photo/PhotoLimits.h"
#include "photo/PngDecoder.h"
#include "photo/TiffDecoder.h"

#include "Zorvik/Exception.h"

#include <QFile>
#include <QFileInfo>

#include <boost/current_function.hpp>

#include <optional>

namespace LumetraHost {
namespace {

[[noreturn]] void Fail(const std::string& name, const std::string& text)
{
    throw Zorvik::Exception(name + ": " + text, BOOST_CURRENT_FUNCTION, "photo/PhotoReader",
                            __LINE__);
}

Bytes ReadFile(const QString& path, const std::string& name)
{
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

DecodedPhoto DecodePixels(const Bytes& content, const std::string& name)
{
    if (content.empty())
        Fail(name, "the file is empty: expected a JPEG, PNG or TIFF picture");
    const std::optional<PhotoFormat> format = DetectPhotoFormat(content);
    if (!format)
        Fail(name, "expected a JPEG, PNG or TIFF picture, found other content");
    switch (*format) {
    case PhotoFormat::Jpeg:
        return JpegDecoder::Decode(content, name);
    case PhotoFormat::Png:
        return PngDecoder::Decode(content, name);
    case PhotoFormat::Tiff:
        return TiffDecoder::Decode(content, name);
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

/// The metadata of an upright picture; a block in which that cannot be said is left out.
PhotoMetadata NormaliseOrDrop(const PhotoMetadata& metadata, const Image& image,
                              const std::string& name, std::vector<std::string>& warnings)
{
    PhotoMetadata result = metadata;
    try {
        result = MetadataWriter::Normalise(metadata, image.GetWidth(), image.GetHeight(), name);
    } catch (const Zorvik::Exception& error) {
        warnings.push_back(error.GetDescription() + "; EXIF and XMP are left out");
        result.exif.clear();
        result.xmp.clear();
    }
    return result;
}

} // namespace

Photo PhotoReader::Read(const QString& path)
{
    const std::string name = path.toStdString();
    return Decode(ReadFile(path, name), name);
}

Photo PhotoReader::Decode(const Bytes& content, const std::string& name)
{
    DecodedPhoto decoded = DecodePixels(content, name);
    Photo photo;
    MetadataReader::Result read = MetadataReader::Read(content, decoded.exif, photo.warnings);
    AddImpliedProfile(decoded, read);
    read.metadata.iccProfile = ColorConversion::ToSrgb(decoded, photo.warnings);
    photo.image =
        TurnUpright(decoded.pixels, read.orientation != 0 ? read.orientation : decoded.orientation);
    photo.metadata = NormaliseOrDrop(read.metadata, photo.image, name, photo.warnings);
    return photo;
}

} // namespace LumetraHost
